#pragma once

#include <array>

#include <QWidget>

#include "page/Health/healthtexts.h"

class BoundTexts;
class QLabel;
class TimeCurve;

/// The health page's figures about one monitor: a tile each, and the curve of its answer times.
class HealthFigures : public QWidget
{
public:
    HealthFigures(BoundTexts &texts, QWidget *parent);

    /// Shows the monitor at that place of the list, in the language of now.
    void fill(std::size_t index, const LinkRecord &record, const QDateTime &now);

private:
    struct Tile
    {
        QLabel *value = nullptr;
        QLabel *detail = nullptr;
    };

    QWidget *buildTile(Tile &tile, const char *caption);
    QWidget *buildCurve();
    void fillCurve(const LinkRecord &record, const QDateTime &now);

    BoundTexts &m_texts;
    std::array<Tile, kHealthFigures> m_tiles;
    TimeCurve *m_curve = nullptr;
};
