#pragma once

#include <QFrame>

#include "ledmatrix/memoryfile.h"
#include "page/Nightloom/parts/frameplayer.h"

class BoundTexts;
class CaptionLabel;
class SmallMatrix;
class QLabel;

/// A memory of the accessory's and what was uploaded into it from here last, which plays while it is seen.
class MemoryCard : public QFrame
{
    Q_OBJECT
public:
    MemoryCard(const AnimationMemory &memory, BoundTexts &texts, QWidget *parent);

    /// Whether the accessory plays it.
    void setPlayed(bool played);

    const SmallMatrix *picture() const { return m_picture; }
    /// What is said of it.
    QString note() const;
    bool isPlaying() const { return m_player.isPlaying(); }

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void retranslate();
    void showFrame(int index);
    QString noteText() const;

    const AnimationMemory &m_memory;
    CaptionLabel *m_name;
    SmallMatrix *m_picture;
    QLabel *m_note;
    KeptAnimation m_kept; ///< empty while it is not seen
    FramePlayer m_player;
};
