# Runs clang-tidy with the compiler. Its checks depend on its release; .clang-tidy is written for this one.
set(house_release 14)

find_program(clang_tidy clang-tidy REQUIRED)
execute_process(COMMAND ${clang_tidy} --version OUTPUT_VARIABLE clang_tidy_version)
string(REGEX MATCH "version ([0-9]+)" clang_tidy_version "${clang_tidy_version}")
if(CMAKE_MATCH_1 EQUAL house_release)
  set(CMAKE_CXX_CLANG_TIDY ${CMAKE_CURRENT_LIST_DIR}/../scripts/cached-tidy ${clang_tidy} --quiet)
else()
  message(NOTICE "clang-tidy is left out: this one is of release ${CMAKE_MATCH_1}, .clang-tidy is for ${house_release}")
endif()
