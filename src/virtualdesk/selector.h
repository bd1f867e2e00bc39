#pragma once

#include <QComboBox>

namespace virtualdesk {

/// A combo box whose arrow is drawn in the desk's colours; a style sheet can only give it a picture.
class Selector : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace virtualdesk
