#pragma once

#include <tuple>
#include <vector>

#include <QtTest>

/// The names of the columns that were made last.
inline std::vector<const char *> dataColumns;

/// The columns of a data table, their types and their names in one order: columns<int, QString>("form", "text").
template <typename... Types, typename... Names> void columns(Names... names)
{
    dataColumns = {names...};
    (QTest::addColumn<Types>(names), ...);
}

/// What the row says in the first columns: const auto [form, text] = fetch<int, QString>().
template <typename... Types> std::tuple<Types...> fetch()
{
    auto name = dataColumns.begin();
    return {*static_cast<Types *>(QTest::qData(*name++, qMetaTypeId<Types>()))...};
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
