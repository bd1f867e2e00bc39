#pragma once

#include <QTimer>

#include "virtualdesk/matrixview.h"

namespace virtualdesk {

class SimulatedAccessory;
struct AccessoryUpload;

/// The matrix as the accessory has it: the live frame, or the uploaded animation, which is played while somebody can
/// see it.
class AccessoryScreen : public MatrixView
{
public:
    /// The accessory outlives it.
    AccessoryScreen(const SimulatedAccessory &accessory, QWidget *parent);

    /// Shows what the accessory has now.
    void refresh();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    const SimulatedAccessory &m_accessory;
    QTimer m_nextFrame;
    int m_frame = 0; ///< of the animation, counted on
};

/// Whole frames of a form that have been uploaded; 0 for a number that is no form.
int uploadedFrames(const AccessoryUpload &upload, int form);

} // namespace virtualdesk
