#pragma once

#include <QtTest>

/// The columns of a data table: their types, and a name for each.
template <typename... Types> void columns(const auto *...names)
{
    (QTest::addColumn<Types>(names), ...);
}

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
