#pragma once

#include <QTabWidget>

namespace virtualdesk {

/// The desk's tabs. As in the program's bars the arrows, Home and End only move the focus, here an outline around a
/// tab, and Space or Enter chooses.
class DeskTabs : public QTabWidget
{
public:
    explicit DeskTabs(QWidget *parent);
};

} // namespace virtualdesk
