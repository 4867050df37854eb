# Every target of the project links vantu_options: one home for warnings, Qt's
# strict switches and the sanitizers.
add_library(vantu_options INTERFACE)
target_compile_features(vantu_options INTERFACE cxx_std_20)

target_compile_options(vantu_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror
  -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wextra-semi)

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

# vantu_room(<name> SOURCES … HEADERS … USES …)
#
# Declares the static library vantu_<name> of one room. Only the room's own
# folder becomes an include path, and USES lists the rooms and Qt modules that it
# may reach: an include from any other room does not build. Every header is
# compiled on its own by the target all_verify_interface_header_sets.
function(vantu_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;HEADERS;USES" ${ARGN})
  add_library(vantu_${name} STATIC)
  target_sources(vantu_${name}
    PRIVATE ${ROOM_SOURCES}
    PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${ROOM_HEADERS})
  set_target_properties(vantu_${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  target_link_libraries(vantu_${name} PUBLIC ${ROOM_USES} PRIVATE vantu_options)
endfunction()
