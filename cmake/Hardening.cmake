# Flags that make faults harder to abuse, for all below the folder that includes this: what is
# installed, and no test. They need optimisation, so the preset for users alone sets VYPX_HARDEN.
if(NOT VYPX_HARDEN)
    return()
endif()
include(CheckPIESupported)
check_pie_supported()
add_compile_options(-D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
add_link_options(LINKER:-z,relro,-z,now)
