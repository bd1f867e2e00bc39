#pragma once

#include <QScrollArea>

class BoundTexts;
class LinkRecord;
class QVBoxLayout;

/// The health page's list of last errors, each with what it means or what to try.
class HealthErrors : public QScrollArea
{
public:
    HealthErrors(BoundTexts &texts, QWidget *parent);

    /// Shows those of a record, in the language of now.
    void fill(const LinkRecord &record);

    /// As high as several of them where there is room, whatever their number: what is below does not move as they come.
    QSize sizeHint() const override;

private:
    QVBoxLayout *m_rows;
};
