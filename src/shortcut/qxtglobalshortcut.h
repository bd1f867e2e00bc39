#pragma once

#include <memory>

#include <QKeySequence>
#include <QObject>

class QxtGlobalShortcutPrivate;

/// One key combination that is heard anywhere on the desktop. Interface thread only; an application object must exist.
class QxtGlobalShortcut : public QObject
{
    Q_OBJECT

public:
    explicit QxtGlobalShortcut(QObject *parent = nullptr);
    explicit QxtGlobalShortcut(const QKeySequence &shortcut, QObject *parent = nullptr);
    ~QxtGlobalShortcut() override;

    /// The combination, also one that the system refused; empty when there is none.
    QKeySequence shortcut() const;

    /// Gives up the present combination and registers the first one of the sequence. False when the system refuses it,
    /// because another program or object has it, and for an empty sequence, which registers nothing.
    bool setShortcut(const QKeySequence &shortcut);

    /// A disabled object keeps its key and stays silent.
    bool isEnabled() const;

public Q_SLOTS:
    void setEnabled(bool enabled = true);
    void setDisabled(bool disabled = true);

Q_SIGNALS:
    void activated();

private:
    std::unique_ptr<QxtGlobalShortcutPrivate> m_private;
};
