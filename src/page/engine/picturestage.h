#pragma once

#include <optional>
#include <vector>

#include <QWidget>

#include "page/engine/panelpicture.h"

class MonitorPicture;
class OptionGroupRow;
class QLabel;

/// The drawn monitor below the controls of a panel, and beside it what the option that is on, and the one that is
/// pointed at, do. Pointing sends nothing.
class PictureStage : public QWidget
{
    Q_OBJECT
public:
    /// For the rows of one panel. Shows what the snapshot holds.
    PictureStage(const PanelPicture &picture, std::vector<OptionGroupRow *> rows, QWidget *parent);

    /// A value has changed, or the language.
    void refresh();

    /// The value that is tried out; nothing while none is.
    std::optional<std::pair<Command, int>> preview() const { return m_preview; }
    MonitorPicture *picture() const { return m_picture; }

private:
    PictureValues values(bool withPreview) const;
    void paint(QPainter &painter, const QRectF &screen) const;
    void point(const OptionGroupRow *row, std::optional<int> value);
    void showWords();

    const PanelPicture &m_spec;
    std::vector<OptionGroupRow *> m_rows;
    const OptionGroupRow *m_told; ///< the row that the words are of
    MonitorPicture *m_picture;
    QLabel *m_onName;
    QLabel *m_onNow;
    QLabel *m_onWords;
    QWidget *m_line;
    QLabel *m_pointedName;
    QLabel *m_pointedWords;
    std::optional<std::pair<Command, int>> m_preview;
};
