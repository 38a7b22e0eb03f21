# One place for what every target of the project is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(KEV_CCACHE ccache)
if(KEV_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${KEV_CCACHE})
endif()

# Warnings are errors in our own code only: third-party headers come in as system headers.
add_library(kev_warnings INTERFACE)
target_compile_options(kev_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# g++ 12 sees overlapping copies in std::string where it inlines more than usual (-O3), and there are none.
target_compile_options(kev_warnings INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)

if(KEV_SANITIZE)
  add_compile_options(-fsanitize=${KEV_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KEV_SANITIZE})
endif()

# Counts of what ran, by region and branch of the source, for llvm-cov.
if(KEV_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()

# Tests, tools and the window include headers as "document/columns.h": one root, the folder src.
set(KEV_SOURCE_ROOT ${CMAKE_SOURCE_DIR}/src)
