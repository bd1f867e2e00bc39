#pragma once

#include <vector>

#include <QWidget>

class OptionGroupRow;
class PictureStage;
class QVBoxLayout;

/// The half of a mode with the user's own parameters: the controls, which scroll, and below them the drawn monitor.
class CustomHalf : public QWidget
{
public:
    explicit CustomHalf(QWidget *parent);

    /// What the controls are to be built into.
    QVBoxLayout *controls() const { return m_controls; }

    /// Shows what the controls do now. The monitor is drawn at the first call, for the options that have words.
    void refreshPicture(const std::vector<OptionGroupRow *> &rows);

private:
    QVBoxLayout *m_controls;
    PictureStage *m_stage = nullptr;
};
