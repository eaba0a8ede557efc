// What the tests of failing disks run: one edit of the catalogs in a folder, told by the arguments.
//
//   search FOLDER       adds what is new in the folder "palm" there
//   single FOLDER       adds the file "app.prc" there, and agrees to everything
//   manual FOLDER       adds the application "Typed"
//   delete FOLDER       deletes the applications "One" and "Two"
//   palm FOLDER         makes "Palm Clock" a "Palm Watch"
//
// Exit code 0: nothing was told; 1: a box told that a catalog could not be written.

#include "catalogs/AddApplication.h"
#include "catalogs/AddPrcFiles.h"
#include "catalogs/CatalogEdits.h"
#include "catalogs/CatalogFiles.h"
#include "catalogs/PalmSystemPage.h"
#include "document/WorkingFolder.h"

#include <vector>

namespace vypx {

namespace {

class Boxes : public SearchListener {
public:
    void Show(const CatalogBox& box) override
    {
        if (box == NotSavedBox() || box == NotDeletedBox())
            hasTold = true;
    }

    bool hasTold = false;
};

int Run(const std::string& edit)
{
    const std::vector<std::string> names{ "One", "Two" };
    Boxes boxes;
    const ShowBox show = [&](const CatalogBox& box) {
        boxes.Show(box);
        return true;
    };
    ReadAppIni([](std::string_view) {});
    ReadPalmAppIni([](std::string_view) {});
    if (edit == "search") {
        SearchFolder = AppFolder + BelowFolder("palm");
        ScanHasNew = true;
        SearchAndAdd(boxes);
    } else if (edit == "single") {
        AddSingle(AppFolder + BelowFolder("app.prc"), show);
    } else if (edit == "manual") {
        AddManual({ "Typed", "TYPD", "appl" }, show);
    } else if (edit == "delete") {
        DeleteApplications(names, show);
    } else if (edit == "palm") {
        ApplyPalmSys(
            { .boxes = { "Watch", "appl", "WTCH" }, .edits = true, .current = "Palm Clock" }, show);
    } else {
        return 2;
    }
    return boxes.hasTold ? 1 : 0;
}

} // namespace
} // namespace vypx

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    vypx::AppFolder = argv[2];
    return vypx::Run(argv[1]);
}
