#include "page/engine/plainbutton.h"

#include "controls/metrics.h"

#include <QPushButton>

#include "page/engine/boundtexts.h"

QPushButton *makePlainButton(const char *label, const QString &name, BoundTexts &texts, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    button->setProperty("plain", true);
    button->setFixedHeight(metrics::kControlHeight);
    texts.bind(label, [button](const QString &text) { button->setText(text); });
    return button;
}
