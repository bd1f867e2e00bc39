#pragma once

#include <QtTest>

/// A row of a data table; texts become what their columns hold, QString.
inline void row(const char *name, const auto &...values)
{
    const auto column = [](const auto &value) {
        if constexpr (std::is_convertible_v<decltype(value), const char *>)
            return QString::fromUtf8(value);
        else
            return value;
    };
    (QTest::newRow(name) << ... << column(values));
}
