#include "ddc_protocol/writekeeper.h"

#include "ddc_protocol/writecounts.h"
#include "platform/desk.h"

static constexpr platform::milliseconds kStoredAfter{60'000};

WriteKeeper::WriteKeeper(QObject *parent) : QObject(parent)
{
    writeCounts.setObserver([this] {
        QMetaObject::invokeMethod(
            this, [this] { platform::desk().clock().callLater(kStoredAfter, this, [] { writeCounts.store(); }); });
    });
}

WriteKeeper::~WriteKeeper()
{
    writeCounts.setObserver({});
    writeCounts.store();
}
