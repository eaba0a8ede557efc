// What the tests of updates run: the start of a program, as far as it takes what is shipped with
// it.
//
//   SHIPPED FOLDER      brings what stands in SHIPPED to the user's FOLDER
//
// Exit code 0.

#include "catalogs/ShippedCatalogs.h"

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    vypx::TakeShippedFiles({ .work = argv[2], .shipped = argv[1] }, vypx::ShippedCatalogRules);
    return 0;
}
