#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <type_traits>
#include <utility>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace virtualdesk {

/// An object of a desk script, read key by key: what is right about keys, numbers and words is decided here for every
/// part of a script. The first mistake is kept; what is read behind one is harmless, and thrown away.
class ScriptObject
{
public:
    /// The text outlives it; it is empty until there is a mistake.
    ScriptObject(QJsonObject object, QString &error) : m_object(std::move(object)), m_error(error) {}

    void fail(const QString &text);

    bool has(const char *key) const { return m_object.contains(QLatin1String(key)); }

    /// The value, which counts as read; undefined when there is none.
    QJsonValue take(const char *key) { return m_object.take(QLatin1String(key)); }

    // Each leaves its target alone when the key is not there.

    /// A number within limits, or text such as "0x10", as codes are usually written.
    template <typename Number> void number(const char *key, Number &target, double low, double high)
    {
        if (const auto given = numberWithin(key, low, high, std::is_integral_v<Number>))
            target = static_cast<Number>(*given);
    }

    void flag(const char *key, bool &target);

    void text(const char *key, QString &target);

    /// One of some words, in the order of the enumeration.
    template <typename Choice, std::size_t Count>
    void choice(const char *key, Choice &target, const char *const (&words)[Count])
    {
        const QJsonValue value = take(key);
        for (std::size_t i = 0; i < Count && !value.isUndefined(); ++i) {
            if (value == QLatin1String(words[i])) {
                target = static_cast<Choice>(i);
                return;
            }
        }
        if (!value.isUndefined())
            failUnknown(key, value.toString());
    }

    /// "times": a number of requests from low on, or "always".
    void times(int &target, int low);

    /// Milliseconds, ten minutes at most; 0 when the key is not there.
    std::chrono::milliseconds wait(const char *key);

    /// Calls with each entry of a list, as an object.
    template <typename Read> void each(const char *key, Read read)
    {
        const QJsonArray entries = list(key);
        for (const QJsonValue &entry : entries)
            read(inside(key, entry));
    }
    QJsonArray list(const char *key);

    /// A list of as many whole numbers as the target has.
    void numbers(const char *key, std::span<int> target);

    /// The object that a value is which stands behind a key, or in the list there; anything else is a mistake, and
    /// reads as an empty one.
    ScriptObject inside(const char *key, const QJsonValue &value);
    ScriptObject inside(const char *key) { return inside(key, take(key)); }

    /// The same, to be read name by name; empty when the key is not there.
    QJsonObject members(const char *key);

    /// A word that nothing here has.
    void failUnknown(const char *key, const QString &word);

    /// To be called when everything was read: what is left is a mistake.
    void finish();

private:
    std::optional<double> numberWithin(const char *key, double low, double high, bool whole);

    QJsonObject m_object;
    QString &m_error;
};

} // namespace virtualdesk
