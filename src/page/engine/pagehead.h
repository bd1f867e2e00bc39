#pragma once

#include <QWidget>

class MessageStrip;
class QHBoxLayout;
class QLabel;

/// What every page begins with: its title, a sentence that says what it is for, and below them what there is to say.
/// Titles, sentences and first rows of all pages stand on the same lines.
class PageHead : public QWidget
{
public:
    /// Belongs to the page.
    explicit PageHead(QWidget *page);

    /// Assistive software calls the page by its title.
    void setTitle(const QString &title);

    /// The sentence may be empty; its line stays.
    void setHelp(const QString &sentence);

    /// Beside title and sentence, at the right.
    QHBoxLayout *corner() { return m_corner; }

    MessageStrip *strip() const { return m_strip; }

private:
    QWidget &m_page;
    QLabel *m_title;
    QLabel *m_help;
    QHBoxLayout *m_corner;
    MessageStrip *m_strip;
};
