#pragma once

#include <string>

/// Perl's Palm::PDB as a second opinion on whole databases.
namespace vypx::test {

bool HasPalmPdb();

/// What a Perl script prints of the database, which is `$pdb`; `$ARGV[1]` is the argument.
std::string PrintedByPalmPdb(
    const std::string& path, const std::string& script, const std::string& argument = {});

} // namespace vypx::test

/// Ends a test that needs Palm::PDB where there is none.
#define SKIP_WITHOUT_PALM_PDB()                                                                    \
    if (!vypx::test::HasPalmPdb())                                                                 \
    GTEST_SKIP() << "libpalm-pdb-perl is not installed"
