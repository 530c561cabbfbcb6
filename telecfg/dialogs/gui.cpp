#include "telecfg/dialogs/gui.h"
#include "telecfg/dialogs/licence_p.h"

namespace {
int licenceLevel = 0;
}

void setGUILicenseLevel(int level)
{
    licenceLevel = level;
}

int guiLicenseLevel()
{
    return licenceLevel;
}
