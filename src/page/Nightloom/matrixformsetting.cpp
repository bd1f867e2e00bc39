#include "page/Nightloom/matrixformsetting.h"

#include "ddc_protocol/settingsstore.h"
#include "ledmatrix/matrixform.h"

void loadMatrixForm()
{
    const int stored = settingsInt(QLatin1String(kMatrixFormKey), 0, false);
    matrixForm = matrixRows(stored).empty() ? kTaperingForm : stored;
}

bool chooseMatrixForm(int form)
{
    matrixForm = form;
    return storeSetting(QLatin1String(kMatrixFormKey), form);
}
