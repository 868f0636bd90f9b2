# A room is one folder and one static library. KNOWS lists the rooms it may call; a room that is not
# listed is not linked, and tools/check_layers refuses its headers. The presets compile a dozen files of a target as
# one, because the standard library and the JSON library take longer to read than they do; a file whose private names
# another one has too stands in ALONE. ./check long compiles each file alone, which shows that it includes what it
# needs.
function(ornavel_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;ALONE;KNOWS" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES} ${ROOM_ALONE})
  set_source_files_properties(${ROOM_ALONE} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ROOM_KNOWS})
  ornavel_warnings(${name})
  # The rehearsal takes longer to compile than to play: nearly all of that is the JSON library, in each file anew. The
  # add-in has a limit on its size; only what works on whole texts is built for speed. A debugger wants neither.
  if(name MATCHES "^rehearsal")
    set_target_properties(${name} PROPERTIES UNITY_BUILD_BATCH_SIZE 40)
    target_compile_options(${name} PRIVATE $<IF:$<CONFIG:Debug>,-O0,-Og>)
  elseif(NOT name MATCHES "^(base|compose)$")
    target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-O0> $<$<AND:$<BOOL:${WIN32}>,$<NOT:$<CONFIG:Debug>>>:-Os>)
  endif()
endfunction()

function(ornavel_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion
    -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping and overlong copies of short texts where there are none (its bugs 105329, 105651); the
    # sanitized build watches the real ones.
    target_compile_options(${target} PRIVATE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow
                           -Wno-stringop-overread)
    # Clang's counts names of other files that are compiled as one with it.
    target_compile_options(${target} PRIVATE -Wshadow)
  endif()
endfunction()
