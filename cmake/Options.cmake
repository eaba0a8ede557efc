option(VYPX_FORMS "Build the windows and the program (needs Qt 6)" ON)
option(VYPX_PICTURES "Read pictures of all formats (needs Qt 6); else only our own BMP files" ON)
option(VYPX_TESTS "Build the tests" ON)
option(VYPX_BENCHMARKS "Build the benchmarks" ON)
option(VYPX_SANITIZE "AddressSanitizer and UndefinedBehaviorSanitizer, both fatal" OFF)
option(VYPX_FUZZ "Build the libFuzzer targets (clang)" OFF)
option(VYPX_INSTAIDE "Build the helper that calls InstAide.dll, and nothing else" OFF)
option(VYPX_HARDEN "Harden what is installed (GCC or clang, with optimisation)" OFF)
option(VYPX_COVERAGE "Count executed lines" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_WINDOWS_EXPORT_ALL_SYMBOLS ON)

find_program(VYPX_CCACHE ccache)
if(VYPX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${VYPX_CCACHE})
endif()

# The flags of all our own code; linked to every target by vypx_target().
add_library(vypx_flags INTERFACE)
if(MSVC)
    target_compile_options(vypx_flags INTERFACE /W4 /WX /utf-8)
else()
    target_compile_options(vypx_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # A struct with defaults for its last fields is initialised by name without them.
    target_compile_options(vypx_flags INTERFACE -Wno-missing-field-initializers)
else()
    target_compile_options(vypx_flags INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-missing-field-initializers>)
    if(CMAKE_UNITY_BUILD)
        # Fixtures of unnamed namespaces: in a batch the compiler takes them for those of a header.
        target_compile_options(vypx_flags INTERFACE
            $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
endif()
if(VYPX_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    if(VYPX_FUZZ)
        list(APPEND sanitizers -fsanitize=fuzzer-no-link)
    endif()
    target_compile_options(vypx_flags INTERFACE ${sanitizers})
    # In programs of tests the costly checks are a third of the build's time, and what they find there
    # the address sanitizer finds as well. Here, as the last of two options counts.
    target_compile_options(vypx_flags INTERFACE $<$<BOOL:$<TARGET_PROPERTY:VYPX_IS_TEST>>:-fno-sanitize=undefined>
        $<$<BOOL:$<TARGET_PROPERTY:VYPX_IS_TEST>>:-fsanitize=shift$<COMMA>signed-integer-overflow$<COMMA>bounds$<COMMA>integer-divide-by-zero$<COMMA>bool$<COMMA>enum>)
    target_link_options(vypx_flags INTERFACE ${sanitizers})
endif()
if(VYPX_COVERAGE)
    target_compile_options(vypx_flags INTERFACE --coverage)
    target_link_options(vypx_flags INTERFACE --coverage)
endif()

# Every target finds headers as "room/File.h" and obeys the same flags.
function(vypx_target name)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src ${VYPX_GENERATED})
    target_link_libraries(${name} PRIVATE vypx_flags)
endfunction()

# Programs of tests: most of a build's time is theirs, and nobody waits for their own loops. Lines in
# a debugger are all that is kept.
function(vypx_test_target name)
    vypx_target(${name})
    if(NOT MSVC)
        target_compile_options(${name} PRIVATE -O0 -g1)
    endif()
    set_target_properties(${name} PROPERTIES VYPX_IS_TEST ON)
endfunction()

# A room below the windows: the sources of one folder of src/ as a static library.
# What it may include is what it links, so an include upward does not link, and Qt not at all.
function(vypx_room name)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
    add_library(vypx_${name} STATIC ${sources})
    vypx_target(vypx_${name})
    target_link_libraries(vypx_${name} PUBLIC ${ARGN})
endfunction()
