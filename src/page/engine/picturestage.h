#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QWidget>

#include "page/engine/panelpicture.h"

class MonitorPicture;
class OptionGroupRow;
class OptionWords;

/// The drawn monitor below the controls of a panel, and beside it what the option that is on, and the one that is
/// pointed at, do. Pointing sends nothing.
class PictureStage : public QWidget
{
    Q_OBJECT
public:
    /// The room of a panel, or a strip below a long list of controls: a small monitor, the words side by side.
    enum class Shape { Panel, Strip };

    /// For the rows of one panel. Shows what the snapshot holds. @p about: see OptionWords.
    PictureStage(const PanelPicture &picture, std::vector<OptionGroupRow *> rows, const char *about, QWidget *parent,
                 Shape shape = Shape::Panel);

    /// Shows the screen as it would look with a value, such as that of a slider that is held; nothing ends it.
    void tryOut(std::optional<std::pair<Command, int>> value);

    /// A value has changed, or the language.
    void refresh();

    /// The value that is tried out; nothing while none is.
    std::optional<std::pair<Command, int>> preview() const;

    MonitorPicture *picture() const { return m_picture; }
    OptionWords *words() const { return m_words; }

private:
    std::optional<int> ifOffered(Command command, std::optional<int> value) const;
    PictureValues values(bool withPreview) const;
    void paint(QPainter &painter, const QRectF &screen) const;
    void showPreview();

    const PanelPicture &m_spec;
    const std::vector<OptionGroupRow *> m_rows;
    MonitorPicture *m_picture;
    OptionWords *m_words;
};
