#pragma once

class BoundTexts;
class QPushButton;
class QString;
class QWidget;

/// A button of a page's own, beside the settings; its text, a source text, follows the language.
QPushButton *makePlainButton(const char *label, const QString &name, BoundTexts &texts, QWidget *parent);
