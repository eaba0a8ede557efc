#include "document/PictureState.h"

namespace vypx {

void ForgetUndo()
{
    LGWasEmpty = SMWasEmpty = false;
    CurrentImageName.clear();
    CurrentImageNameSM.clear();
    BackedUp.clear();
    CropResultReady = CropForLG = CropForSM = false;
}

void ResetPictureState()
{
    ForgetUndo();
    ImageFile.clear();
    TargetWidth = TargetHeight = 0;
    picbuff = {};
    ScratchTransparent.reset();
    DroppedTransparent.reset();
    CropBackR = CropBackG = CropBackB = 255;
    EditingLG = TCPreviewSet = false;
    TCPreviewR = TCPreviewG = TCPreviewB = 0;
}

} // namespace vypx
