#include "virtualdesk/scriptobject.h"

#include <algorithm>
#include <cmath>

#include "virtualdesk/faults.h"

namespace virtualdesk {

constexpr int kMostTimes = 1000000;
constexpr int kLongestWait = 600000; // milliseconds

void ScriptObject::fail(const QString &text)
{
    if (m_error.isEmpty())
        m_error = text;
}

void ScriptObject::failUnknown(const char *key, const QString &word)
{
    fail(QStringLiteral("unknown \"%1\": \"%2\"").arg(QLatin1String(key), word));
}

std::optional<double> ScriptObject::numberWithin(const char *key, double low, double high, bool whole)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return {};
    bool ok = value.isDouble();
    double number = value.toDouble();
    if (value.isString())
        number = value.toString().toInt(&ok, 0);
    if (ok && number >= low && number <= high && (!whole || number == std::floor(number)))
        return number;
    fail(QStringLiteral("\"%1\" must be a number from %2 to %3")
             .arg(QLatin1String(key))
             .arg(static_cast<qlonglong>(low))
             .arg(static_cast<qlonglong>(high)));
    return {};
}

void ScriptObject::flag(const char *key, bool &target)
{
    const QJsonValue value = take(key);
    if (!value.isUndefined() && !value.isBool())
        fail(QStringLiteral("\"%1\" must be true or false").arg(QLatin1String(key)));
    target = value.toBool(target);
}

void ScriptObject::text(const char *key, QString &target)
{
    const QJsonValue value = take(key);
    if (!value.isUndefined() && !value.isString())
        fail(QStringLiteral("\"%1\" must be a text").arg(QLatin1String(key)));
    target = value.toString(target);
}

void ScriptObject::times(int &target, int low)
{
    constexpr char kKey[] = "times";
    if (m_object.value(QLatin1String(kKey)) != QLatin1String("always"))
        return number(kKey, target, low, kMostTimes);
    take(kKey);
    target = kForEver;
}

std::chrono::milliseconds ScriptObject::wait(const char *key)
{
    int milliseconds = 0;
    number(key, milliseconds, 0, kLongestWait);
    return std::chrono::milliseconds(milliseconds);
}

QJsonArray ScriptObject::list(const char *key)
{
    const QJsonValue value = take(key);
    if (!value.isUndefined() && !value.isArray())
        fail(QStringLiteral("\"%1\" must be a list").arg(QLatin1String(key)));
    return value.toArray();
}

void ScriptObject::numbers(const char *key, std::span<int> target)
{
    if (!has(key))
        return;
    const QJsonArray given = list(key);
    const auto isWhole = [](const QJsonValue &value) { return value.isDouble() && value.toInt(1) == value.toInt(0); };
    if (given.size() != static_cast<qsizetype>(target.size()) || !std::all_of(given.begin(), given.end(), isWhole))
        return fail(QStringLiteral("\"%1\" must be %2 numbers").arg(QLatin1String(key)).arg(target.size()));
    std::transform(given.begin(), given.end(), target.begin(), [](const QJsonValue &value) { return value.toInt(); });
}

ScriptObject ScriptObject::inside(const char *key, const QJsonValue &value)
{
    if (!value.isObject())
        fail(QStringLiteral("\"%1\" must be an object, or a list of them").arg(QLatin1String(key)));
    return {value.toObject(), m_error};
}

QJsonObject ScriptObject::members(const char *key)
{
    return has(key) ? inside(key).m_object : QJsonObject();
}

void ScriptObject::finish()
{
    if (!m_object.isEmpty())
        fail(QStringLiteral("unknown \"%1\"").arg(m_object.begin().key()));
}

} // namespace virtualdesk
