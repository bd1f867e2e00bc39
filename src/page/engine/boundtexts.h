#pragma once

#include <functional>
#include <vector>

#include <QString>

/// The texts of a page, each bound to what shows it, so that one call translates them all again.
class BoundTexts
{
public:
    using Apply = std::function<void(const QString &)>;

    /// Translates source (in the context QObject), applies it, and remembers both.
    void bind(const char *source, Apply apply);

    /// Applies every text in the language of now.
    void retranslate() const;

private:
    struct Entry
    {
        const char *source;
        Apply apply;
    };
    std::vector<Entry> m_entries;
};
