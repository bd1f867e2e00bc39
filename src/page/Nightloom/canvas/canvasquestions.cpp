#include "page/Nightloom/canvas/canvasquestions.h"

#include <QWidget>

#include "controls/filequestion.h"
#include "controls/messagebox.h"
#include "platform/ending.h"

static QString fileFilter()
{
    return QObject::tr("CSV file (*.csv);");
}

QString CanvasQuestions::askSaveFile()
{
    return askForNewFile(m_asker->window(), QObject::tr("Save File"), QString(), fileFilter(), QStringLiteral("csv"));
}

QString CanvasQuestions::askOpenFile()
{
    return askForFile(m_asker->window(), QObject::tr("Select File"), QString(), fileFilter());
}

void CanvasQuestions::warn(const QString &text)
{
    if (platform::programEnds()) // it closed the question for the file
        return;
    const QString title = QObject::tr("Warning");
    showMessage(QMessageBox::Warning, title, text, QObject::tr("OK"), QMessageBox::YesRole, m_asker->window());
}

CanvasQuestions::Leaving CanvasQuestions::askLeaving()
{
    const bool seen =
        m_asker->window()->isVisible() && !m_asker->window()->isMinimized(); // a box would go to the tray with it
    const int answer = askOneOf(
        QObject::tr("Custom Mode"), QObject::tr("The drawn frames are not saved. Save them now?"),
        {QObject::tr("Save"), QObject::tr("Do not save"), QObject::tr("Cancel")}, seen ? m_asker->window() : nullptr);
    constexpr Leaving kAnswers[] = {Leaving::Save, Leaving::DoNotSave, Leaving::Stay};
    return kAnswers[answer];
}
