# Compiler settings of every target: warnings are errors, ccache where it is installed.
find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# A dozen test programs are linked after each change of a low room.
find_program(MOLD mold)
if(MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_BUILD_TYPE STREQUAL "Debug")
  add_link_options(-fuse-ld=mold)
endif()

add_library(tabulon_flags INTERFACE)
target_compile_definitions(tabulon_flags INTERFACE
  QT_DISABLE_DEPRECATED_BEFORE=0x060400 QT_NO_FOREACH QT_NO_KEYWORDS
  TABULON_VERSION_MAJOR=${PROJECT_VERSION_MAJOR} TABULON_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  TABULON_VERSION_REVISION=${PROJECT_VERSION_PATCH})
if(MSVC)
  target_compile_options(tabulon_flags INTERFACE /W4 /WX /utf-8 /permissive-)
else()
  target_compile_options(tabulon_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wold-style-cast -Woverloaded-virtual -Wnon-virtual-dtor -Wconversion -Wno-sign-conversion
    -Werror $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()

if(TABULON_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
