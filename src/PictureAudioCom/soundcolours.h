#pragma once

#include <QList>

#include "PictureAudioCom/screencolours.h"

/// The colours that lamps take from the bars of a spectrum: low tones are red and those above go up to violet, on the
/// left what is low, on the right what is high; full bars are bright. Dark without bars.
ZoneColours soundColours(const QList<int> &heights);
