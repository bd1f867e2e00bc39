#pragma once

#include <QString>

class BoundTexts;
class QPushButton;
class QWidget;

/// A button of a page's own, beside the settings; its text, a source text, follows the language.
QPushButton *makePlainButton(const char *label, const QString &name, BoundTexts &texts, QWidget *parent);

/// Whether a button can be pressed now; it says why not.
void allowButton(QPushButton *button, bool can, const QString &whyNot);

/// Gives a button the look of those; @p more are rules that it has besides.
void dressPlainButton(QPushButton *button, const QString &more = {});
