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
    /// The room of a panel, or a strip below a long list of controls: a small monitor, the words side by side.
    enum class Shape { Panel, Strip };

    /// For the rows of one panel. Shows what the snapshot holds.
    PictureStage(const PanelPicture &picture, std::vector<OptionGroupRow *> rows, QWidget *parent,
                 Shape shape = Shape::Panel);

    /// Shows the screen as it would look with a value, such as that of a slider that is held; nothing ends it.
    void tryOut(std::optional<std::pair<Command, int>> value);

    /// A value has changed, or the language.
    void refresh();

    /// Says below the words which keys do the same, in rich text; nothing when it is empty.
    void setKeys(const QString &keys);

    /// The value that is tried out; nothing while none is.
    std::optional<std::pair<Command, int>> preview() const { return m_preview; }
    MonitorPicture *picture() const { return m_picture; }

private:
    void layOut();
    PictureValues values(bool withPreview) const;
    void paint(QPainter &painter, const QRectF &screen) const;
    void point(const OptionGroupRow *row, std::optional<int> value);
    void showWords();

    const PanelPicture &m_spec;
    const bool m_isStrip;
    std::vector<OptionGroupRow *> m_rows;
    const OptionGroupRow *m_told; ///< the row that the words are of
    MonitorPicture *m_picture;
    QLabel *m_onName;
    QLabel *m_onNow;
    QLabel *m_onWords;
    QWidget *m_line;
    QLabel *m_pointedName;
    QLabel *m_pointedWords;
    QLabel *m_keys;
    std::optional<std::pair<Command, int>> m_preview;
};
