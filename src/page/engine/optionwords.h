#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QWidget>

#include "ddc_protocol/command.h"

class OptionGroupRow;
class QLabel;
class QVBoxLayout;
struct OptionGroup;

/// What the option that is on, and the one that is pointed at, do: a sentence or two each, of the option or else of its
/// group. Beside a picture, or below the controls where there is none. Pointing sends nothing.
class OptionWords : public QWidget
{
    Q_OBJECT
public:
    /// The two one below the other, side by side, or side by side without headings, where there is little room.
    enum class Shape { Column, Columns, Band };

    /// For the rows of one panel. Shows what the snapshot holds. @p about, a source text, is what the panel is for: a
    /// switch of that name turns the other rows off.
    OptionWords(std::vector<OptionGroupRow *> rows, Shape shape, QWidget *parent, const char *about = nullptr);

    /// Whether there is anything to say of a group's options.
    static bool hasWords(const OptionGroup &group);

    /// A value is tried out that no option has, such as that of a slider that is held; nothing ends it.
    void tryOut(std::optional<std::pair<Command, int>> value);

    /// A value has changed, or the language.
    void refresh();

    /// Says below the words which keys do the same, in rich text; nothing when it is empty.
    void setKeys(const QString &keys);

    /// Puts something of the page's own above the words.
    void putAbove(QWidget *part);

    /// The value that is tried out; nothing while none is.
    std::optional<std::pair<Command, int>> preview() const { return m_preview; }

    /// What is told of the option that is pointed at, else of the one that is on, for assistive software.
    QString told() const { return m_toldText; }

Q_SIGNALS:
    /// Another value is tried out, or none.
    void previewChanged();

private:
    struct Said
    {
        QString name;
        QString now; ///< whether it is on, as far as that is known
        QString words;
    };

    void layOut();
    void point(const OptionGroupRow *row, std::optional<int> value);
    Said sayOn(int value) const;
    Said sayPointed(int value) const;
    QString nameOf(const OptionGroupRow *row) const;
    QString stateOf(int value) const;
    void show(const Said &on, const Said &pointed);

    const Shape m_shape;
    std::vector<OptionGroupRow *> m_rows;
    const OptionGroupRow *m_told;   ///< the row that the words are of; null when none has any
    const OptionGroupRow *m_master; ///< the switch that turns the others off; null for none
    const bool m_isOneOfMany;       ///< an option's name alone does not say whose it is
    QVBoxLayout *m_first = nullptr; ///< of the words
    QLabel *m_onName;
    QLabel *m_onNow;
    QLabel *m_onWords;
    QWidget *m_line;
    QLabel *m_pointedName;
    QLabel *m_pointedWords;
    QLabel *m_keys;
    std::optional<int> m_pointed; ///< an option of the row that is told of
    std::optional<std::pair<Command, int>> m_preview;
    QString m_toldText;
};
