#pragma once

class BoundTexts;
class QLabel;
class QString;
class QWidget;

/// A label of the health page; its object name is what the style goes by. Letters of the given height in pixels in one
/// line, or, with 0, of the notes' size in as many lines as it takes. A text, a source text, follows the language.
QLabel *makeHealthLabel(const QString &name, int pixels, QWidget *parent);
QLabel *makeHealthLabel(const QString &name, int pixels, const char *text, BoundTexts &texts, QWidget *parent);
