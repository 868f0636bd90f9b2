# 64-bit Windows. The headers are those of the old systems, so that no structure grows and nothing newer is called by
# accident.
set(mingw_processor x86_64)
set(mingw_flags "")
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
