# Read by ctest: where TEMBRA_FUZZERS names the fuzzers' build folder, their tests are among those of this build.
if(DEFINED ENV{TEMBRA_FUZZERS})
  include("$ENV{TEMBRA_FUZZERS}/CTestTestfile.cmake")
endif()
