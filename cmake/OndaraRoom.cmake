# A room is one folder of src/ and one static library; its link line states the floor it stands on.

# ondara_room(NAME SOURCES file... LINKS library...)
function(ondara_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(${name} PUBLIC ondara_common ${ROOM_LINKS})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
endfunction()

# ondara_test(ROOM [NAME name] SOURCES file... LINKS library...): the tests of one room, which link
# that room alone, and the support library that brings the main function. A room whose tests need
# more than one main function names each of its programs.
function(ondara_test room)
  cmake_parse_arguments(TEST "" "NAME" "SOURCES;LINKS" ${ARGN})
  if(NOT TEST_NAME)
    set(TEST_NAME ${room}_tests)
  endif()
  add_executable(${TEST_NAME} ${TEST_SOURCES})
  target_link_libraries(${TEST_NAME} PRIVATE ${room} ${TEST_LINKS} GTest::gtest)
  target_include_directories(${TEST_NAME} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  gtest_discover_tests(
    ${TEST_NAME}
    TEST_PREFIX "${room}/"
    DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 120)
endfunction()
