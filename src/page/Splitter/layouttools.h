#pragma once

#include <vector>

#include <QWidget>

class BoundTexts;
class LayoutEditor;
class LayoutModel;
class QLabel;
class QLineEdit;
class QPushButton;

/// What is done to the chosen layout beside its picture: its name, and a button for each change.
class LayoutTools : public QWidget
{
    Q_OBJECT
public:
    /// The model and the editor outlive it.
    LayoutTools(LayoutModel &model, LayoutEditor &editor, BoundTexts &texts, QWidget *parent);

    /// How to draw; a line of its own, wherever the page has room for it.
    QLabel *hint() const { return m_hint; }

    /// Shows the model's layout, and what can be done to it.
    void showLayout();

private:
    struct Tool;
    static const Tool kTools[];

    void showPossible();

    LayoutModel &m_model;
    LayoutEditor &m_editor;
    QLineEdit *m_name;
    QLabel *m_hint;
    std::vector<QPushButton *> m_buttons; ///< in the order of the tools
};
