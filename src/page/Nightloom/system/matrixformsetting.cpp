#include "page/Nightloom/system/matrixformsetting.h"

#include "ddc_protocol/settingsstore.h"
#include "usb-hid/accessorylink.h"

void loadMatrixForm()
{
    const MatrixForm *stored = findMatrixForm(settingsInt(QLatin1String(kMatrixFormKey), 0, false));
    accessoryLink.form = stored ? stored : &matrixForms().front();
}

bool chooseMatrixForm(const MatrixForm &form)
{
    accessoryLink.form = &form;
    return storeSetting(QLatin1String(kMatrixFormKey), form.number);
}
