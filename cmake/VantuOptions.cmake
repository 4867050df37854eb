# Every target of the project links vantu_options: one home for warnings, Qt's
# strict switches and the sanitizers.
add_library(vantu_options INTERFACE)
target_compile_features(vantu_options INTERFACE cxx_std_20)

# A compiler that nobody here has tried may warn of more.
option(VANTU_WERROR "Let warnings stop the build" ON)
target_compile_options(vantu_options INTERFACE
  -Wall -Wextra -Wpedantic $<$<BOOL:${VANTU_WERROR}>:-Werror>
  -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wextra-semi)

# What a program was loaded with stays as it is.
target_link_options(vantu_options INTERFACE LINKER:-z,relro LINKER:-z,now)

target_compile_definitions(vantu_options INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_FOREACH
  QT_NO_KEYWORDS
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_CONTEXTLESS_CONNECT
  QT_STRICT_ITERATORS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

set(VANTU_SANITIZE "" CACHE STRING "Sanitizers for the whole build, such as address,undefined")
if(VANTU_SANITIZE)
  add_compile_options(-fsanitize=${VANTU_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VANTU_SANITIZE})
endif()

option(VANTU_FUZZ "Build the libFuzzer targets (needs clang)" OFF)
if(VANTU_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
endif()

# Most of a compiler's time goes into Qt's headers. The presets for daily work read them
# once; the release and the static checks don't, so that a missing include is found there.
option(VANTU_PCH "Read Qt's headers once, into a precompiled header" OFF)
if(VANTU_PCH)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
  add_library(vantu_pch OBJECT ${CMAKE_CURRENT_LIST_DIR}/pch.cpp)
  set_target_properties(vantu_pch PROPERTIES AUTOMOC OFF)
  # The folders of the modules without their definitions: a precompiled header serves
  # no source that lacks a definition which it was made with.
  target_include_directories(vantu_pch SYSTEM PRIVATE
    $<TARGET_PROPERTY:Qt6::Gui,INTERFACE_INCLUDE_DIRECTORIES>
    $<TARGET_PROPERTY:Qt6::Widgets,INTERFACE_INCLUDE_DIRECTORIES>)
  target_link_libraries(vantu_pch PRIVATE Qt6::Core vantu_options)
  target_precompile_headers(vantu_pch PRIVATE ${CMAKE_CURRENT_LIST_DIR}/pch.h)
endif()

# vantu_use_pch(<target>): with VANTU_PCH, the target's sources begin with pch.h.
function(vantu_use_pch target)
  if(VANTU_PCH)
    target_precompile_headers(${target} REUSE_FROM vantu_pch)
  endif()
endfunction()

# vantu_room(<name> SOURCES … HEADERS … USES …)
#
# Declares the static library vantu_<name> of one room. Only the room's own
# folder becomes an include path, and USES lists the rooms and Qt modules that it
# may reach: an include from any other room does not build. Every header builds on
# its own: a source includes its own header first, and the headers without a source
# are compiled by the target all_verify_interface_header_sets.
function(vantu_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;HEADERS;USES" ${ARGN})
  set(lone_headers ${ROOM_HEADERS})
  list(TRANSFORM ROOM_SOURCES REPLACE "\\.cpp$" ".h" OUTPUT_VARIABLE sourced_headers)
  list(REMOVE_ITEM lone_headers ${sourced_headers})
  set(headers ${ROOM_HEADERS})
  list(REMOVE_ITEM headers ${lone_headers})
  add_library(vantu_${name} STATIC)
  target_sources(vantu_${name}
    PRIVATE ${ROOM_SOURCES}
    PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${headers}
    PUBLIC FILE_SET lone TYPE HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${lone_headers})
  set_target_properties(vantu_${name} PROPERTIES
    VERIFY_INTERFACE_HEADER_SETS ON
    INTERFACE_HEADER_SETS_TO_VERIFY lone)
  target_link_libraries(vantu_${name} PUBLIC ${ROOM_USES} PRIVATE vantu_options)
  vantu_use_pch(vantu_${name})
endfunction()
