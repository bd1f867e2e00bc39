#pragma once

class QLabel;
class QWidget;

/// What a page says in small words beside or below its controls.
QLabel *makeNote(QWidget *parent);
