# Precompiled headers for builds from scratch, such as that of the quick tests. Other builds do without, so that they
# find files that do not include what they use. Included when all targets are defined.
find_package(GTest REQUIRED)

# compile_headers(NAME HEADERS …): compiles the headers once in each language.
function(compile_headers name)
  set(sources ${PROJECT_BINARY_DIR}/headers.cpp)
  if(BRIMSOUND_PLATFORM STREQUAL ios)
    list(APPEND sources ${PROJECT_BINARY_DIR}/headers.mm)
  endif()
  file(TOUCH ${sources})
  add_library(${name} OBJECT ${sources})
  target_precompile_headers(${name} PRIVATE ${ARGN})
  if(TARGET gnustep)
    # When it is included after precompiled headers without it, clang finds a second class named Protocol.
    target_link_libraries(${name} PRIVATE gnustep)
    target_precompile_headers(${name} PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:<Foundation/Foundation.h$<ANGLE-R>>)
  endif()
endfunction()

# include_headers(FOLDER NAME): every target of the folder and of the folders in it includes the compiled headers.
function(include_headers folder name)
  if(folder MATCHES ^${PROJECT_SOURCE_DIR}/tests)
    set(name test_headers)
  endif()
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    get_target_property(own ${target} PRECOMPILE_HEADERS)
    if(type MATCHES "^(STATIC_LIBRARY|OBJECT_LIBRARY|EXECUTABLE)$" AND NOT own)
      target_precompile_headers(${target} REUSE_FROM ${name})
    endif()
  endforeach()
  get_property(subfolders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(subfolder IN LISTS subfolders)
    include_headers(${subfolder} ${name})
  endforeach()
endfunction()

set(standard_headers
  <algorithm> <array> <chrono> <cmath> <cstdint> <filesystem> <functional> <memory> <optional> <span> <string> <string_view>
  <utility> <variant> <vector>
)
compile_headers(product_headers ${standard_headers})
compile_headers(test_headers ${standard_headers} <gmock/gmock.h> <gtest/gtest.h>)
target_link_libraries(test_headers PRIVATE GTest::gmock)
if(TARGET platform_qt)
  target_precompile_headers(test_headers PRIVATE <nlohmann/json.hpp>)
  target_precompile_headers(platform_qt PRIVATE ${standard_headers} <QtWidgets>)
  target_precompile_headers(brimsound_app PRIVATE ${standard_headers} <QtWidgets> <nlohmann/json.hpp>)
endif()
include_headers(${PROJECT_SOURCE_DIR} product_headers)
