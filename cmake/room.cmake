# A room is one folder and one static library. KNOWS lists the rooms it may call; a room that is not
# listed is not linked, and tools/check_layers refuses its headers. READS lists headers that take so long to read that
# they are read once for the room; READS_AS names the room that has read them.
function(ornavel_room name)
  cmake_parse_arguments(ROOM "" "READS_AS" "SOURCES;KNOWS;READS" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ROOM_KNOWS})
  ornavel_warnings(${name})
  # The add-in has a limit on its size; only what works on whole texts is built for speed. A debugger wants neither.
  if(WIN32 AND NOT name MATCHES "^(base|compose)$")
    target_compile_options(${name} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-Os>)
  endif()
  ornavel_read_once(${name})
endfunction()

# The standard library takes longer to read than most of our files. The fuzz targets read it each time, which shows
# that each file includes what it needs.
function(ornavel_read_once name)
  set(first base)
  if(WIN32 AND NOT name MATCHES "^(base|compose)$")
    set(first host) # built as the others are
  endif()
  if(ROOM_READS)
    target_precompile_headers(${name} PRIVATE ${ROOM_READS})
  elseif(ROOM_READS_AS)
    target_precompile_headers(${name} REUSE_FROM ${ROOM_READS_AS})
  elseif(name STREQUAL first AND NOT ORNAVEL_FUZZ)
    target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/standard_library.h)
  elseif(NOT ORNAVEL_FUZZ)
    target_precompile_headers(${name} REUSE_FROM ${first})
  endif()
endfunction()

function(ornavel_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping and overlong copies of short texts where there are none (its bugs 105329, 105651); the
    # sanitized build watches the real ones.
    target_compile_options(${target} PRIVATE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow
                           -Wno-stringop-overread)
  endif()
endfunction()
