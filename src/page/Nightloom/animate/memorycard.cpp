#include "page/Nightloom/animate/memorycard.h"

#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/captionlabel.h"
#include "controls/labelled.h"
#include "controls/metrics.h"
#include "page/Nightloom/parts/smallmatrix.h"
#include "page/engine/boundtexts.h"
#include "page/engine/note.h"
#include "usb-hid/accessorylink.h"

namespace {

constexpr int kNamePixels = 15;
constexpr int kNameHeight = 22;
constexpr int kNoteHeight = 88;

} // namespace

MemoryCard::MemoryCard(const AnimationMemory &memory, BoundTexts &texts, QWidget *parent)
    : QFrame(parent), m_memory(memory), m_name(new CaptionLabel(QString(), kNamePixels, this)),
      m_picture(new SmallMatrix(this)), m_note(makeNote(this))
{
    setObjectName(QStringLiteral("matrixCard"));
    describeAs(this, QAccessible::Grouping);
    m_name->setObjectName(QStringLiteral("matrixName"));
    m_name->setFixedHeight(kNameHeight); // cards differ by a pixel
    m_note->setWordWrap(true);
    m_note->setFixedHeight(kNoteHeight);
    m_note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::kInset, metrics::kInset, metrics::kInset, metrics::kInset);
    column->setSpacing(metrics::kGap);
    column->addWidget(m_name);
    column->addWidget(m_picture);
    column->addWidget(m_note);
    connect(&m_player, &FramePlayer::frameDue, this, &MemoryCard::showFrame);
    texts.bind(memory.label, [this](const QString &) { retranslate(); });
}

void MemoryCard::retranslate()
{
    const QString name = QObject::tr(m_memory.label);
    setAccessibleName(name);
    m_name->setText(name);
    m_picture->setAccessibleName(labelled(name, QObject::tr("LED matrix")));
    m_note->setText(noteText());
}

QString MemoryCard::noteText() const
{
    switch (m_kept.kind) {
    case KeptAnimation::Kind::Nothing:
        break;
    case KeptAnimation::Kind::Frames:
        return QObject::tr("Frames: %1").arg(m_kept.frames.size());
    case KeptAnimation::Kind::OfAnotherForm:
        return QObject::tr("Uploaded for another form of the matrix.");
    }
    return QObject::tr("Not uploaded from here. In Custom Mode it is \"%1\".").arg(QObject::tr(m_memory.uploadLabel));
}

QString MemoryCard::note() const
{
    return m_note->text();
}

void MemoryCard::setPlayed(bool played)
{
    if (property("played").toBool() == played)
        return;
    setProperty("played", played); // what the style sheet goes by
    style()->unpolish(this);
    style()->polish(this);
}

void MemoryCard::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    const MatrixForm *form = accessoryLink.form;
    m_kept = form ? keptAnimation(m_memory, *form) : KeptAnimation();
    m_note->setText(noteText());
    showFrame(0);
    if (m_kept.frames.size() > 1)
        m_player.play(static_cast<int>(m_kept.frames.size()));
}

void MemoryCard::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    m_player.stop(); // nobody sees it
    m_kept.frames.clear();
}

/// A dark matrix where there is nothing to show.
void MemoryCard::showFrame(int index)
{
    const MatrixForm *form = accessoryLink.form;
    if (!form)
        return m_picture->showFrame({});
    MatrixFrame frame(*form);
    frame.setDigits(m_kept.frames.value(index));
    m_picture->showFrame(std::move(frame));
}
