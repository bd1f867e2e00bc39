#include "page/engine/dropdown.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QListView>
#include <QSet>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/wheeleventfilter.h"
#include "page/engine/scrollarea.h"

// The box, its arrow without a frame, and the open list. The size of its letters is its own: a page may have another.
static const char16_t *const kDropDownStyle =
    u"QComboBox { color: @text; background-color: @field; border: 1px solid @edge; border-radius: 8px;"
    " padding: 0 8px; selection-background-color: @selected;"
    " combobox-popup: 0; }" // a list of ten rows that scrolls, not a menu as high as the screen
    "QComboBox:focus { border-color: @mint; }"
    "QComboBox:disabled { color: @disabled; border-color: @restingEdge; }"
    "QComboBox::drop-down { border: none; width: 28px; }"
    "QComboBox::down-arrow { image: url(:/resource/img/option/drop.png); width: 14px; height: 14px; }"
    "QListView { background-color: @field; color: @soft; border: 1px solid @edge; outline: none; font-size: 14px; "
    "padding: 4px; }"
    "QListView::item { min-height: 32px; }"
    "QListView::item:disabled { color: @hint; }"
    "QListView::indicator { width: 14px; height: 14px; }"
    "QListView::indicator:checked { image: url(:/resource/img/option/tick.png); }"
    "QListView::indicator:unchecked { image: none; }"
    "QListView::item:selected { background-color: @selected; color: @text; }";

namespace {

constexpr int kListPixels = 14;

/// Opens the list by the keys that would change the value of a closed box: a held key must not send the monitor, or
/// ask the user, whatever lies on its way.
class ListOpener : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        static const QSet<int> kKeys = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                                        Qt::Key_Home, Qt::Key_End,  Qt::Key_Return, Qt::Key_Enter};
        if (event->type() != QEvent::KeyPress || !kKeys.contains(static_cast<QKeyEvent *>(event)->key()))
            return false;
        static_cast<QComboBox *>(watched)->showPopup();
        return true;
    }
};

} // namespace

QComboBox *makeDropDown(QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->setView(new QListView(box));                   // the style sheet reaches this view only, not the system's own
    box->setItemDelegate(new QStyledItemDelegate(box)); // as does this one
    QFont font = box->font();
    font.setPixelSize(kListPixels);
    box->setFont(font);
    box->setFixedHeight(metrics::kControlHeight);
    box->setStyleSheet(Palette::styled(kDropDownStyle) + scrollBarStyle());
    box->view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded); // a menu has none, and at first it was one
    box->installEventFilter(new WheelEventFilter(box));
    box->installEventFilter(new ListOpener(box));
    return box;
}

void markListed(QComboBox *box, const QString &reason, const std::function<bool(const QVariant &)> &isListed)
{
    const auto *model = static_cast<QStandardItemModel *>(box->model());
    for (int row = 0; row < model->rowCount(); ++row) {
        QStandardItem *item = model->item(row);
        const bool listed = isListed(item->data(Qt::UserRole));
        item->setEnabled(!listed);
        item->setToolTip(listed ? reason : QString());
        item->setData(listed ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    }
}
