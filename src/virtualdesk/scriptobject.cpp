#include "virtualdesk/scriptobject.h"

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

void ScriptObject::finish()
{
    if (!m_object.isEmpty())
        fail(QStringLiteral("unknown \"%1\"").arg(m_object.begin().key()));
}

} // namespace virtualdesk
