# How a subsystem, its tests and a program are declared, so that every folder reads alike.

# lunaria_subsystem(<name> [DEPENDS <library>...])
# A static library lunaria_<name> of the sources in this folder and in its folder of the platform.
function(lunaria_subsystem name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h ${LUNARIA_PLATFORM}/*.cpp ${LUNARIA_PLATFORM}/*.h)
  if(NOT sources)
    return()
  endif()
  add_library(lunaria_${name} STATIC ${sources})
  set_target_properties(lunaria_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(lunaria_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(lunaria_${name} PUBLIC ${ARG_DEPENDS} PRIVATE lunaria_warnings)
endfunction()

# lunaria_test(<name> [DEPENDS <library>...])
# A test program test_<name> of the sources in this folder and in its folder of the platform.
# Built for Windows it runs under Wine, in the prefix that tests/wine makes.
function(lunaria_test name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h ${LUNARIA_PLATFORM}/*.cpp ${LUNARIA_PLATFORM}/*.h)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources})
  target_link_libraries(test_${name} PRIVATE ${ARG_DEPENDS} lunaria_harness lunaria_warnings)
  if(WIN32)
    add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tests/wine/run $<TARGET_FILE:test_${name}>)
  else()
    add_test(NAME ${name} COMMAND test_${name})
  endif()
endfunction()
