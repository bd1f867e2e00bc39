// What the panel of the tray icon is made of.

#include <QActionGroup>
#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

#include "controls/captionlabel.h"
#include "controls/pictures.h"
#include "page/engine/dropdown.h"
#include "page/engine/halfbutton.h"
#include "page/engine/labels.h"
#include "page/engine/pagestyle.h"
#include "tray/trayicon.h"
#include "tray/traypanel.h"

namespace {

constexpr int kWidth = 360;
constexpr int kMargin = 20;
constexpr int kControlHeight = 36;
constexpr int kRowSpacing = 14;
constexpr int kNamePixels = 17;
constexpr int kStatePixels = 14;

constexpr const char *kPlaceLabels[kTrayPlaces] = {LABEL("First control"), LABEL("Second control")};

QHBoxLayout *makeRow(QWidget *parent)
{
    auto *row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    return row;
}

} // namespace

void TrayPanel::build()
{
    setObjectName(QStringLiteral("TrayPanel"));
    setWindowTitle(QStringLiteral("QUORVEL"));
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    dressPage(this);
    setFixedWidth(kWidth);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, 16, kMargin, 12);
    column->setSpacing(12);
    column->addWidget(buildHeader());
    auto *line = new QFrame(this);
    line->setObjectName(QStringLiteral("line"));
    line->setFixedHeight(1);
    column->addWidget(line);
    m_scroll = new QScrollArea(this);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(buildBody());
    column->addWidget(m_scroll);
    column->addWidget(buildFooter());
}

QWidget *TrayPanel::buildHeader()
{
    auto *header = new QWidget(this);
    m_name = new CaptionLabel(QString(), kNamePixels, header);
    m_name->setObjectName(QStringLiteral("title"));
    m_state = new CaptionLabel(QString(), kStatePixels, header);
    m_state->setObjectName(QStringLiteral("note"));
    m_dot = new QLabel(QStringLiteral("●"), header);
    m_dot->setObjectName(QStringLiteral("panelDot"));
    m_sceneMark = new ValueMark(header);
    auto *grid = new QGridLayout(header);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    grid->addWidget(m_name, 0, 0);
    grid->addWidget(m_dot, 0, 1, Qt::AlignRight);
    grid->addWidget(m_state, 1, 0);
    grid->addWidget(m_sceneMark, 1, 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->setColumnStretch(0, 1);
    return header;
}

QWidget *TrayPanel::buildBody()
{
    m_body = new QWidget(this);
    m_body->setObjectName(QStringLiteral("customArea"));
    m_scene = makeDropDown(m_body);
    m_scene->setFixedHeight(kControlHeight);
    m_scene->setPlaceholderText(QStringLiteral("–"));
    m_scene->setMaxVisibleItems(12);
    m_scene->installEventFilter(this);
    connect(m_scene, &QComboBox::activated, this, [this](int index) {
        Q_EMIT sceneChosen(m_scene->itemData(index).toInt());
        fillScene();
    });
    m_places = new QVBoxLayout;
    m_places->setSpacing(kRowSpacing);
    auto *column = new QVBoxLayout(m_body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(m_scene);
    column->addWidget(buildHalves());
    column->addSpacing(4);
    column->addLayout(m_places);
    column->addStretch(1);
    return m_body;
}

QWidget *TrayPanel::buildHalves()
{
    auto *halves = new QWidget(m_body);
    auto *row = makeRow(halves);
    m_halves = new QButtonGroup(halves);
    m_default = new QPushButton(halves);
    m_custom = new QPushButton(halves);
    for (QPushButton *half : {m_default, m_custom}) {
        half->setProperty("half", true);
        half->setCheckable(true);
        half->setFocusPolicy(Qt::StrongFocus);
        half->setFixedHeight(kControlHeight);
        texts().bind(half == m_default ? kDefaultLabel : kCustomLabel,
                     [half](const QString &text) { half->setText(text.trimmed()); });
        m_halves->addButton(half);
        row->addWidget(half, 1);
        connect(half, &QPushButton::clicked, this, [this, half] {
            Q_EMIT halfChosen(half == m_default);
            fillScene();
        });
    }
    return halves;
}

QWidget *TrayPanel::buildFooter()
{
    auto *footer = new QWidget(this);
    auto *row = makeRow(footer);
    m_hint = new QLabel(footer);
    m_hint->setObjectName(QStringLiteral("panelHint"));
    m_hint->setWordWrap(true);
    m_chooser = new QToolButton(footer);
    m_chooser->setIcon(QIcon(Pictures::kRoot + QStringLiteral("img/entry/tool_settings.png")));
    m_chooser->setFocusPolicy(Qt::StrongFocus);
    m_chooser->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(m_chooser);
    dressTrayMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fillMenu(menu); });
    m_chooser->setMenu(menu);
    row->addWidget(m_hint, 1);
    row->addWidget(m_chooser);
    return footer;
}

/// For each place a list of what can stand there.
void TrayPanel::fillMenu(QMenu *menu)
{
    menu->clear();
    qDeleteAll(menu->findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly));
    for (std::size_t place = 0; place < kTrayPlaces; ++place) {
        QMenu *list = menu->addMenu(QObject::tr(kPlaceLabels[place]));
        auto *group = new QActionGroup(list);
        for (const TrayControl &control : m_choices) {
            QAction *action = list->addAction(QObject::tr(control.label));
            action->setActionGroup(group);
            action->setCheckable(true);
            action->setChecked(control.command == m_chosen[place]);
            connect(action, &QAction::triggered, this,
                    [this, place, command = control.command] { choose(place, command); });
        }
    }
}
