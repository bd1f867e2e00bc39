#pragma once

#include <functional>

/// The session's reads of the monitor into deviceState.
class SnapshotReader
{
public:
    /// Wants a search so many milliseconds from now; called on the thread that reads.
    using SearchAfter = std::function<void(int delay)>;

    explicit SnapshotReader(SearchAfter searchAfter);

    /// As SearchDeviceDlg::readDataFromDevice().
    bool readAll() const;

    /// As SearchDeviceDlg::readSceneModeData().
    bool readSceneBlock(int mode) const;

private:
    SearchAfter m_searchAfter;
};
