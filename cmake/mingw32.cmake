# 32-bit Windows. Callers of old programs keep the stack in steps of four bytes; our functions put it right.
set(mingw_processor i686)
set(mingw_flags " -mstackrealign")
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
