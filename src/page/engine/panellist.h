#pragma once

#include <vector>

#include <QFrame>

class BoundTexts;
class FocusGroup;
class LeftTabButton;
class QPushButton;
class QScrollArea;
class QVBoxLayout;
struct PanelSpec;

/// A page's own list: an entry for each of its panels, of which one is marked. Arrows scroll it where it is longer than
/// its room.
class PanelList : public QFrame
{
    Q_OBJECT
public:
    /// The entries' texts are bound to @p texts.
    PanelList(BoundTexts &texts, QWidget *parent);

    /// One more entry, below the others.
    void add(const PanelSpec &panel);

    const std::vector<LeftTabButton *> &entries() const { return m_entries; } ///< hidden ones as well

    /// Shows an entry, by its place, or hides it.
    void offer(int index, bool isOffered);

    /// Marks one entry, by its place.
    void mark(int index);

Q_SIGNALS:
    /// The user chose an entry, by its place.
    void chosen(int index);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPushButton *makeArrow(const QString &name, const QString &arrow, int direction);

    BoundTexts &m_texts;
    std::vector<LeftTabButton *> m_entries;
    QVBoxLayout *m_column;
    FocusGroup *m_stop;
    QScrollArea *m_area;
};
