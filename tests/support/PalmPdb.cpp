#include "support/PalmPdb.h"

#include "support/Netpbm.h"

#include <cstdlib>

namespace vypx::test {

bool HasPalmPdb()
{
    static const bool found = std::system("perl -MPalm::PDB -MPalm::Raw -e 1 2>/dev/null") == 0;
    return found;
}

std::string PrintedByPalmPdb(
    const std::string& path, const std::string& script, const std::string& argument)
{
    const Bytes printed =
        OutputOf("perl -MPalm::PDB -MPalm::Raw -e '"
                 "Palm::PDB::RegisterPRCHandlers(\"Palm::Raw\", [\"VNTR\", \"ICON\"]);"
                 "my $pdb = Palm::PDB->new; $pdb->Load($ARGV[0]);"
            + script + "' '" + path + "' '" + argument + "' 2>/dev/null");
    return { printed.begin(), printed.end() };
}

} // namespace vypx::test
