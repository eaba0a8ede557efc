# Turns files into one C++ source, for builds on any system. Run as a script:
#   cmake -DOUT=... "-DFILES=a;b" -P EmbedFiles.cmake
set(arrays)
set(rows)
foreach(file IN LISTS FILES)
    cmake_path(GET file FILENAME name)
    string(MAKE_C_IDENTIFIER ${name} array)
    file(READ ${file} bytes HEX)
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
    # A 0 behind the last byte, as an array can't be empty.
    string(APPEND arrays "constexpr unsigned char ${array}[] = { ${bytes}0 };\n")
    string(APPEND rows "    { \"${name}\", TextOf(${array}) },\n")
endforeach()
file(CONFIGURE OUTPUT ${OUT} @ONLY CONTENT [=[
#include "catalogs/BuiltInCatalogs.h"

namespace vypx {

namespace {

@arrays@
template <std::size_t Size>
std::string_view TextOf(const unsigned char (&bytes)[Size])
{
    return { reinterpret_cast<const char*>(bytes), Size - 1 };
}

const BuiltInCatalog Rows[] = {
@rows@};

} // namespace

std::span<const BuiltInCatalog> ShippedCatalogs() { return Rows; }

} // namespace vypx
]=])
