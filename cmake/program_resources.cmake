# ornavel_program_resources(TARGET DESCRIPTION): what Windows tells about the program TARGET.exe: version and manifest.
function(ornavel_program_resources target description)
  set(name ${target})
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/program.rc.in ${resources} @ONLY)
  target_sources(${target} PRIVATE ${resources})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS
    "${PROJECT_SOURCE_DIR}/cmake/program.manifest;${PROJECT_BINARY_DIR}/generated/diagnostics/about.h")
endfunction()
