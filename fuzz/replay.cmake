# The fuzz targets as ordinary tests: each runs over the reference files of tests/data and a
# fixed set of generated inputs (binary noise, long lines, no line ends, CR alone).
function(brooklet_fuzz_target name)
  add_executable(${name}_replay ${ARGN} ${CMAKE_CURRENT_LIST_DIR}/replay_main.cpp)
  target_link_libraries(${name}_replay PRIVATE brooklet_core)
  add_test(NAME ${name}_replay COMMAND ${name}_replay ${CMAKE_SOURCE_DIR}/tests/data)
  set_tests_properties(${name}_replay PROPERTIES LABELS "core;fuzz")
endfunction()

include(${CMAKE_CURRENT_LIST_DIR}/targets.cmake)
