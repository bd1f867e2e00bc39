// Tells when the main window has been painted for the first time. The program loads this as any Qt program does that
// finds its name in QT_QPA_GENERIC_PLUGINS, so what is measured is the program as it is shipped.

#include <unistd.h>

#include <chrono>

#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>

namespace {

class PaintProbe : public QObject
{
public:
    explicit PaintProbe(int descriptor) : m_descriptor(descriptor)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (m_descriptor >= 0 && event->type() == QEvent::Paint && object->inherits("MainWindow")) {
            QCoreApplication::instance()->removeEventFilter(this);
            // The filter sees the event before the window does: report once all of this painting is done.
            QMetaObject::invokeMethod(
                this, [this] { report(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void report()
    {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        const QByteArray line = QByteArray::number(qint64(std::chrono::nanoseconds(now).count())) + '\n';
        [[maybe_unused]] const ssize_t written = ::write(m_descriptor, line.constData(), size_t(line.size()));
        ::close(m_descriptor);
    }

    int m_descriptor;
};

class PaintProbePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "paintprobe.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        bool ok = false;
        const int descriptor = qEnvironmentVariableIntValue("QUORVEL_PROBE_FD", &ok);
        return new PaintProbe(ok ? descriptor : -1);
    }
};

} // namespace

#include "paintprobe.moc"
