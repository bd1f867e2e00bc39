#pragma once

#include <QtTest>

/// The columns of a data table, their types and their names in one order: columns<int, QString>("form", "text").
template <typename... Types, typename... Names> void columns(Names... names)
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
