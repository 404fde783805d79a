# The warnings that every target of the project is compiled with; each is an error.
add_library(tavrene_warnings INTERFACE)
target_compile_options(tavrene_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
  -Wold-style-cast -Woverloaded-virtual -Wcast-qual -Wformat=2 -Werror)
# GCC 12 takes text + std::string for an overlapping copy when it optimises.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(tavrene_warnings INTERFACE -Wno-restrict)
endif()

# tavrene_library(NAME DEPENDS ...): one static library from all sources of the calling folder.
function(tavrene_library name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_library(tavrene_${name} STATIC ${sources})
  target_include_directories(tavrene_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(tavrene_${name} PUBLIC ${ARG_DEPENDS} PRIVATE tavrene_warnings)
  set_target_properties(tavrene_${name} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()

# tavrene_test(NAME DEPENDS ... [EXCEPT REGEX]): one test program from all sources of the calling folder but those.
function(tavrene_test name)
  cmake_parse_arguments(ARG "" "EXCEPT" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(ARG_EXCEPT)
    list(FILTER sources EXCLUDE REGEX "${ARG_EXCEPT}")
  endif()
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(test_${name} PRIVATE ${ARG_DEPENDS} tavrene_test_support GTest::gtest_main tavrene_warnings)
  # Optimising the checks' own code under the sanitizers takes five times as long as running it slowly.
  target_compile_options(test_${name} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O0>)
  include(GoogleTest)
  gtest_discover_tests(test_${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" DISCOVERY_TIMEOUT 60)
endfunction()
