#pragma once

#include <QString>

/// Which monitor commands go to now: its label with its place in the list, so that twins stay two. Empty when there is
/// none. Safe from any thread.
QString monitorIdentity();
