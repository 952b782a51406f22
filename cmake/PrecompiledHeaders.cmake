# Precompiled headers for builds from scratch, such as that of the quick tests. Other builds do without, so that they
# find files that do not include what they use.

# precompile(TARGET HEADERS …): headers that many files of the target include, besides the standard ones.
function(precompile target)
  if(BRIMSOUND_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

if(BRIMSOUND_PRECOMPILE)
  add_library(standard_headers INTERFACE)
  target_precompile_headers(standard_headers INTERFACE
    <algorithm> <array> <chrono> <cmath> <cstdint> <filesystem> <functional> <memory> <optional> <span> <string>
    <string_view> <utility> <variant> <vector>
  )
  link_libraries(standard_headers)
endif()
