#pragma once

#include <vector>

#include <QWidget>

class BoundTexts;
class KeyFields;
class QLabel;
class QxtGlobalShortcut;
class ZelmarKeySequenceEdit;

/// What a hot key of the splitter does.
enum class SplitAction { Next, Previous, Restore, ShowZones };

/// The fields for the splitter's hot keys. A combination counts and is stored as soon as it was pressed; the keys work
/// while this lives.
class SplitterKeys : public QWidget
{
    Q_OBJECT
public:
    /// The other pages' fields outlive it.
    SplitterKeys(KeyFields &fields, BoundTexts &texts, QWidget *parent);

    ZelmarKeySequenceEdit *field(SplitAction action) const;

    void updateControlText();

Q_SIGNALS:
    void pressed(SplitAction action);

    /// What there is to say about what was pressed into a field; empty when there is nothing.
    void noticed(const QString &text);

    /// A field could not be stored; it counts until the program ends.
    void unstored();

protected:
    /// Tells that a key is used twice; returns when the user has read it.
    virtual void showConflict();

private:
    struct Row
    {
        SplitAction action;
        ZelmarKeySequenceEdit *field;
        QxtGlobalShortcut *shortcut;
        bool isRefused = false; ///< by the system
    };

    void build(SplitAction action, BoundTexts &texts);
    void loadKeys();
    void take(Row &row);
    void showProblems();

    KeyFields &m_fields;
    std::vector<Row> m_rows;
    QLabel *m_problem;
};
