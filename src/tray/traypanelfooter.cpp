#include "tray/traypanelfooter.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/pictures.h"
#include "page/engine/labels.h"

static constexpr const char *kPlaceLabels[kTrayPlaces] = {LABEL("First control"), LABEL("Second control")};

TrayPanelFooter::TrayPanelFooter(const TrayChoices &choices, QVBoxLayout *column, QWidget *panel)
    : QObject(panel), m_choices(choices)
{
    auto *footer = new QWidget(panel);
    auto *row = new QHBoxLayout(footer);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    m_hint = new QLabel(footer);
    m_hint->setObjectName(QStringLiteral("panelHint"));
    m_hint->setWordWrap(true);
    m_chooser = new QToolButton(footer);
    m_chooser->setObjectName(QStringLiteral("panelChooser"));
    m_chooser->setIcon(QIcon(Pictures::kRoot + QStringLiteral("img/entry/choose_functions.png")));
    m_chooser->setFocusPolicy(Qt::StrongFocus);
    m_chooser->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(m_chooser);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fillMenu(menu); });
    m_chooser->setMenu(menu);
    row->addWidget(m_hint, 1);
    row->addWidget(m_chooser);
    column->addWidget(footer);
}

/// For each place a list of what can stand there.
void TrayPanelFooter::fillMenu(QMenu *menu)
{
    menu->clear();
    qDeleteAll(menu->findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly));
    for (std::size_t place = 0; place < kTrayPlaces; ++place) {
        QMenu *list = menu->addMenu(QObject::tr(kPlaceLabels[place]));
        auto *group = new QActionGroup(list);
        for (const TrayControl &control : m_choices.offered()) {
            QAction *action = list->addAction(QObject::tr(control.label));
            action->setActionGroup(group);
            action->setCheckable(true);
            action->setChecked(control.command == m_choices.chosen()[place]);
            connect(action, &QAction::triggered, this,
                    [this, place, command = control.command] { Q_EMIT this->chosen(place, command); });
        }
    }
}

void TrayPanelFooter::showHint(const QString &notice)
{
    m_hint->setStyleSheet(notice.isEmpty() ? QString() : Palette::styled(u"color: @error;"));
    m_hint->setText(notice.isEmpty() ? QObject::tr("Wheel: one step · Tab, arrows · Esc closes") : notice);
}

void TrayPanelFooter::updateControlText()
{
    m_chooser->setAccessibleName(QObject::tr("Choose the controls"));
    m_chooser->setToolTip(QObject::tr("Choose the controls"));
    showHint();
}
