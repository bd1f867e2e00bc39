#pragma once

#include <QFrame>

#include "page/Nightloom/render/eventpictures.h"

class CaptionLabel;
class SmallMatrix;

/// The picture of one event of a game, as the accessory shows it, below the event's name.
class EventCard : public QFrame
{
public:
    explicit EventCard(QWidget *parent);

    /// Shows an event; the matrix is empty while the accessory's form is not known.
    void tell(GameEvent event, const QString &name);

    const SmallMatrix *picture() const { return m_picture; }

private:
    CaptionLabel *m_name;
    SmallMatrix *m_picture;
};
