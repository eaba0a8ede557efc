#include "document/PictureState.h"

namespace vypx {

void ForgetUndo()
{
    LGWasEmpty = SMWasEmpty = false;
    CurrentImageName.clear();
    CurrentImageNameSM.clear();
    BackedUp.clear();
}

void ResetPictureState()
{
    ForgetUndo();
    ImageFile.clear();
    TargetWidth = TargetHeight = 0;
    CropResultReady = CropForLG = CropForSM = false;
    picbuff = {};
    ScratchTransparent.reset();
}

} // namespace vypx
