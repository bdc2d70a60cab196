# What hardens the programs that are shipped. A debug build goes without: _FORTIFY_SOURCE wants optimisation, and the
# sanitizers have checks of their own.
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  return()
endif()

include(CheckCXXCompilerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "TEMBRA_HAS${flag}" known)
  check_cxx_compiler_flag(${flag} ${known})
  if(${known})
    add_compile_options(${flag})
  endif()
endforeach()
add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
