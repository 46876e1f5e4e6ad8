# Every fuzz target: brooklet_fuzz_target(name source...). Each source defines LLVMFuzzerTestOneInput.
brooklet_fuzz_target(fuzz_input_file ${CMAKE_CURRENT_LIST_DIR}/fuzz_input_file.cpp)
brooklet_fuzz_target(fuzz_help_list ${CMAKE_CURRENT_LIST_DIR}/fuzz_help_list.cpp)
brooklet_fuzz_target(fuzz_option_sections ${CMAKE_CURRENT_LIST_DIR}/fuzz_option_sections.cpp)
brooklet_fuzz_target(fuzz_delimited_values ${CMAKE_CURRENT_LIST_DIR}/fuzz_delimited_values.cpp)
brooklet_fuzz_target(fuzz_output_reader ${CMAKE_CURRENT_LIST_DIR}/fuzz_output_reader.cpp)
