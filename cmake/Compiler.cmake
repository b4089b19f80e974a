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

# What Debian builds its packages with (dpkg-buildflags, hardening=+all).
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_BUILD_TYPE STREQUAL "Release")
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection
    -Wformat -Werror=format-security)
  if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
    add_compile_options(-fcf-protection)
  endif()
  add_link_options(-pie -Wl,-z,relro,-z,now)
endif()

if(TABULON_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
