#pragma once

class QWidget;

/// Paints the ground on which everything of a page stands.
void layGround(QWidget *page);

/// Gives a page, or a part of one, the look of the style sheet that pages share. For what few widgets stand on: the
/// toolkit works its rules out for each of them, and keeps some 8 kB then.
void dressPage(QWidget *page);
