#include "virtualdesk/desktoppanel.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

#include "platform/nativekeys.h"
#include "virtualdesk/labels.h"
#include "virtualdesk/virtualdesk.h"
#include "virtualdesk/windowsview.h"

namespace virtualdesk {

namespace {

/// A combination as the system counts it; no key for one that has no virtual-key code here.
struct KeyPress
{
    std::uint32_t modifiers = 0;
    std::uint32_t key = 0;
};

KeyPress keyPressOf(const QKeySequence &sequence)
{
    if (sequence.isEmpty())
        return {};
    return {nativeModifiers(sequence[0].keyboardModifiers()), nativeKey(static_cast<std::uint32_t>(sequence[0].key()))};
}

} // namespace

DesktopPanel::DesktopPanel(VirtualDesk &desk, QWidget *parent)
    : QWidget(parent), m_desk(desk), m_keyTitle(makeTitle(this)), m_key(new QKeySequenceEdit(this)),
      m_press(new QPushButton(this)), m_take(new QPushButton(this)), m_keyResult(new QLabel(this)),
      m_programTitle(makeTitle(this)), m_programs(new QListWidget(this)), m_windows(new WindowsView(desk, this)),
      m_front(new QPushButton(this)), m_add(new QPushButton(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 8, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_keyTitle);
    column->addWidget(buildKeyboard());
    column->addWidget(m_keyResult);
    column->addSpacing(16);
    column->addWidget(m_programTitle);
    column->addWidget(m_programs, 1);
    column->addWidget(m_windows);
    column->addWidget(buildPrograms());
    m_keyResult->setObjectName(QStringLiteral("state"));
    m_keyResult->setWordWrap(true);
    connect(m_press, &QPushButton::clicked, this, &DesktopPanel::pressKey);
    connect(m_take, &QPushButton::clicked, this, &DesktopPanel::takeKey);
    connect(m_front, &QPushButton::clicked, this, &DesktopPanel::bringToFront);
    connect(m_programs, &QListWidget::itemActivated, this, &DesktopPanel::bringToFront);
    connect(m_add, &QPushButton::clicked, this, &DesktopPanel::addProgram);
    fillPrograms();
    retranslate();
}

QWidget *DesktopPanel::buildKeyboard()
{
    auto *keyboard = new QWidget(this);
    auto *row = new QHBoxLayout(keyboard);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(m_key, 1);
    row->addWidget(m_press);
    row->addWidget(m_take);
    return keyboard;
}

QWidget *DesktopPanel::buildPrograms()
{
    auto *buttons = new QWidget(this);
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(m_front, 1);
    row->addWidget(m_add, 1);
    return buttons;
}

void DesktopPanel::pressKey()
{
    const KeyPress press = keyPressOf(m_key->keySequence());
    const bool heard = press.key != 0 && m_desk.pressKey(press.modifiers, press.key);
    m_keyResult->setText(heard ? QObject::tr("The program heard it.")
                               : QObject::tr("The program has not registered this combination."));
}

void DesktopPanel::takeKey()
{
    const KeyPress press = keyPressOf(m_key->keySequence());
    if (press.key == 0)
        return;
    const bool taken = m_desk.hotKeys().take(press.modifiers, press.key);
    m_keyResult->setText(taken ? QObject::tr("From now on another program has it.")
                               : QObject::tr("The program has this combination already."));
}

void DesktopPanel::addProgram()
{
    const QString path =
        QFileDialog::getOpenFileName(this, m_add->text(), {}, {}, nullptr, QFileDialog::DontUseNativeDialog);
    if (path.isEmpty())
        return;
    auto list = m_desk.applications().list();
    list.push_back({QString(path).replace(QLatin1Char('/'), QLatin1Char('\\'))});
    m_desk.applications().setList(std::move(list));
    fillPrograms();
    m_programs->setCurrentRow(m_programs->count() - 1);
    m_windows->update();
}

void DesktopPanel::bringToFront()
{
    if (m_programs->currentRow() >= 0)
        m_desk.applications().bringToFront(static_cast<std::size_t>(m_programs->currentRow()));
    m_windows->update();
}

void DesktopPanel::fillPrograms()
{
    m_programs->clear();
    for (const Application &application : m_desk.applications().list()) {
        auto *item = new QListWidgetItem(application.path.section(QLatin1Char('\\'), -1), m_programs);
        item->setToolTip(Qt::convertFromPlainText(application.path)); // which may look like rich text
    }
    m_programs->setCurrentRow(0);
}

void DesktopPanel::retranslate()
{
    m_keyTitle->setText(QObject::tr("Keyboard"));
    m_key->setAccessibleName(QObject::tr("Combination to press"));
    if (auto *field = m_key->findChild<QLineEdit *>()) // which has the focus
        field->setAccessibleName(m_key->accessibleName());
    m_key->setToolTip(QObject::tr("Type the combination here, then press it on the whole desktop"));
    m_press->setText(QObject::tr("Press"));
    m_take->setText(QObject::tr("Taken by another"));
    m_take->setToolTip(QObject::tr("Another program registers the combination first"));
    m_programTitle->setText(QObject::tr("Programs"));
    m_programs->setAccessibleName(m_programTitle->text());
    m_windows->setAccessibleName(QObject::tr("Windows"));
    m_front->setText(QObject::tr("Bring to the front"));
    m_add->setText(QObject::tr("Another program…"));
}

} // namespace virtualdesk
