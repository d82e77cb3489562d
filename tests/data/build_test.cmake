# A person's database outlives every build. A build of a copy of data/ alone is made and made again:
#   cmake -D FOLDER=folder -D DATA=folder -D SQLITE3=tool -D GENERATOR=name -P build_test.cmake
cmake_minimum_required(VERSION 3.25)

set(people "${FOLDER}/build/Ondara/Ondara2.mdb")
set(shipped "${FOLDER}/build/shipped/Ondara2.mdb")
set(own "${FOLDER}/own")
set(texts "${FOLDER}/build/Ondara/Interp.mdb")

function(build)
  execute_process(
    COMMAND "${CMAKE_COMMAND}" --build "${FOLDER}/build" ${ARGN}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Expects the person database to be a copy of that file.
function(expect_people when copied)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${people}" "${copied}"
                  RESULT_VARIABLE differs)
  if(differs)
    message(FATAL_ERROR "The person database after ${when} is no copy of ${copied}")
  endif()
endfunction()

file(REMOVE_RECURSE "${FOLDER}")
file(COPY "${DATA}/" DESTINATION "${FOLDER}/data")
file(WRITE "${FOLDER}/CMakeLists.txt"
     "cmake_minimum_required(VERSION 3.25)\nproject(DataAlone NONE)\nadd_subdirectory(data)\n")
execute_process(
  COMMAND "${CMAKE_COMMAND}" -S "${FOLDER}" -B "${FOLDER}/build" -G "${GENERATOR}" -D
          "SQLITE3_TOOL=${SQLITE3}"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
build()
expect_people("the first build" "${shipped}")

file(WRITE "${own}" "a person's own")
file(COPY_FILE "${own}" "${people}")
build()
expect_people("another build" "${own}")

file(SHA256 "${texts}" texts_before)
file(APPEND "${FOLDER}/data/people.sql" "DELETE FROM Data WHERE Name = 'Mozart';\n")
file(APPEND "${FOLDER}/data/interpretations.sql" "UPDATE HLC SET interp = 'Changed.';\n")
build()
expect_people("a build with changed contents" "${own}")
file(SHA256 "${texts}" texts_after)
if(texts_after STREQUAL texts_before)
  message(FATAL_ERROR "The interpretations are those of yesterday")
endif()

build(--target clean)
expect_people("a clean" "${own}")
build()
expect_people("the build after it" "${own}")

file(REMOVE "${people}")
build()
expect_people("a build where it had gone" "${shipped}")
