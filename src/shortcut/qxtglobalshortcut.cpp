#include "shortcut/qxtglobalshortcut.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QAbstractEventDispatcher>
#include <QAbstractNativeEventFilter>
#include <QDebug>
#include <QHash>

#include "platform/desk.h"
#include "platform/nativekeys.h"

namespace {

constexpr std::uint32_t kModifierMask = 0x1E000000; // Shift, Control, Alt and Meta in the toolkit's combined code

/// Virtual-key code and modifier bits, as WM_HOTKEY brings them.
using NativeKey = std::pair<std::uint32_t, std::uint32_t>;

int idOf(const NativeKey &key)
{
    return static_cast<int>(key.second ^ key.first);
}

/// What all shortcuts share. Their number decides whether the application's events are watched.
struct SharedKeys
{
    QHash<NativeKey, QxtGlobalShortcut *> owners;
    std::vector<QxtGlobalShortcutPrivate *> parts; ///< the living ones; the first is the one that watches
};

SharedKeys &sharedKeys()
{
    static SharedKeys keys;
    return keys;
}

/// Ctrl+A and Alt+B, for one, have the same id, and the system may have taken away another key than the one that was
/// meant: all that are left are registered anew.
void restoreKeysOf(int id)
{
    platform::GlobalKeys &keys = platform::desk().globalKeys();
    const auto &owners = sharedKeys().owners;
    const bool isShared =
        std::any_of(owners.keyBegin(), owners.keyEnd(), [id](const NativeKey &key) { return idOf(key) == id; });
    if (!isShared)
        return;
    while (keys.unregisterKey(id)) {
    }
    for (auto entry = owners.keyBegin(); entry != owners.keyEnd(); ++entry) {
        if (idOf(*entry) == id)
            keys.registerKey(id, entry->second, entry->first);
    }
}

} // namespace

class QxtGlobalShortcutPrivate final : public QAbstractNativeEventFilter
{
public:
    explicit QxtGlobalShortcutPrivate(QxtGlobalShortcut *owner);
    ~QxtGlobalShortcutPrivate() override;

    bool setShortcut(const QKeySequence &shortcut);
    bool unsetShortcut();
    QKeySequence shortcut() const { return QKeySequence(static_cast<int>(m_key | m_modifiers)); }

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    bool isEnabled = true;

private:
    NativeKey native() const
    {
        return {nativeKey(m_key), nativeModifiers(Qt::KeyboardModifiers::fromInt(static_cast<int>(m_modifiers)))};
    }

    QxtGlobalShortcut *m_owner;
    std::uint32_t m_key = 0;       // 0: none
    std::uint32_t m_modifiers = 0; // Qt::KeyboardModifier bits
};

QxtGlobalShortcutPrivate::QxtGlobalShortcutPrivate(QxtGlobalShortcut *owner) : m_owner(owner)
{
    auto &parts = sharedKeys().parts;
    parts.push_back(this);
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    if (parts.size() == 1 && dispatcher)
        dispatcher->installNativeEventFilter(this);
}

QxtGlobalShortcutPrivate::~QxtGlobalShortcutPrivate()
{
    if (m_key != 0)
        unsetShortcut();
    SharedKeys &shared = sharedKeys();
    // A key that the system would not give back stays recorded, but must not name an object that is gone.
    shared.owners.removeIf([this](const auto &entry) { return entry.value() == m_owner; });

    const bool watched = shared.parts.front() == this;
    std::erase(shared.parts, this);
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    if (!watched || !dispatcher)
        return;
    dispatcher->removeNativeEventFilter(this);
    if (!shared.parts.empty()) // the others still want to hear their keys
        dispatcher->installNativeEventFilter(shared.parts.front());
}

bool QxtGlobalShortcutPrivate::setShortcut(const QKeySequence &shortcut)
{
    if (m_key != 0)
        unsetShortcut();
    const auto combined = static_cast<std::uint32_t>(shortcut.isEmpty() ? 0 : shortcut[0].toCombined());
    m_key = combined & ~kModifierMask;
    m_modifiers = combined & kModifierMask;
    if (m_key == 0)
        return false;
    const NativeKey key = native();
    if (key.first == 0) // the system would take it, and no press would ever come
        return false;
    if (!platform::desk().globalKeys().registerKey(idOf(key), key.second, key.first))
        return false;
    sharedKeys().owners.insert(key, m_owner);
    return true;
}

bool QxtGlobalShortcutPrivate::unsetShortcut()
{
    const NativeKey key = native();
    auto &owners = sharedKeys().owners;
    const bool done = owners.value(key) == m_owner && platform::desk().globalKeys().unregisterKey(idOf(key));
    if (done) {
        owners.remove(key);
        restoreKeysOf(idOf(key));
    } else {
        qWarning().noquote() << "QxtGlobalShortcut failed to unregister:"
                             << shortcut().toString(QKeySequence::NativeText);
    }
    m_key = 0;
    m_modifiers = 0;
    return done;
}

/// Hears every key of the program, whichever object owns it. Nothing of this object may be used after the signal.
bool QxtGlobalShortcutPrivate::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != platform::kNativeEventType)
        return false;
    const auto *native = static_cast<const platform::NativeMessage *>(message);
    if (native->message != platform::kMessageHotKey)
        return false;
    const auto keys = static_cast<std::uint32_t>(native->lParam);
    QxtGlobalShortcut *owner = sharedKeys().owners.value({keys >> 16, keys & 0xFFFF});
    if (owner && owner->isEnabled())
        Q_EMIT owner->activated();
    return false;
}

QxtGlobalShortcut::QxtGlobalShortcut(QObject *parent)
    : QObject(parent), m_private(std::make_unique<QxtGlobalShortcutPrivate>(this))
{
}

QxtGlobalShortcut::QxtGlobalShortcut(const QKeySequence &shortcut, QObject *parent) : QxtGlobalShortcut(parent)
{
    setShortcut(shortcut);
}

QxtGlobalShortcut::~QxtGlobalShortcut() = default;

QKeySequence QxtGlobalShortcut::shortcut() const
{
    return m_private->shortcut();
}

bool QxtGlobalShortcut::setShortcut(const QKeySequence &shortcut)
{
    return m_private->setShortcut(shortcut);
}

bool QxtGlobalShortcut::isEnabled() const
{
    return m_private->isEnabled;
}

void QxtGlobalShortcut::setEnabled(bool enabled)
{
    m_private->isEnabled = enabled;
}

void QxtGlobalShortcut::setDisabled(bool disabled)
{
    m_private->isEnabled = !disabled;
}
