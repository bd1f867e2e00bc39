#pragma once

#include <QString>

class QWidget;

/// What the canvas page asks and tells the user in boxes, over the window of who asks.
class CanvasQuestions
{
public:
    /// What becomes of frames that no file holds when the program ends.
    enum class Leaving { Save, DoNotSave, Stay };

    explicit CanvasQuestions(const QWidget *asker) : m_asker(asker) {}
    virtual ~CanvasQuestions() = default;

    /// Ask for a file; empty when the user names none.
    virtual QString askSaveFile();
    virtual QString askOpenFile();

    /// A warning box with "OK".
    virtual void warn(const QString &text);

    virtual Leaving askLeaving();

private:
    const QWidget *m_asker;
};
