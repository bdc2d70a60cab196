# The one place where warnings are chosen. The presets turn them into errors.
add_library(tembra_warnings INTERFACE)
target_compile_options(tembra_warnings INTERFACE
  -Wall -Wextra -Wno-missing-field-initializers -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align -Woverloaded-virtual
  -Wunused -Wformat=2 -Wimplicit-fallthrough -Winvalid-pch
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond;-Wlogical-op>)
target_compile_definitions(tembra_warnings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS)
