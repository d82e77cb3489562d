# How the databases are made and laid out, one behaviour a run:
#   cmake -D BEHAVIOUR=name -D FOLDER=folder -D DATA=folder -D SQLITE3=tool -P lay_out_test.cmake
cmake_minimum_required(VERSION 3.25)

function(expect what actual expected)
  if(NOT actual STREQUAL expected)
    message(FATAL_ERROR "${what}: expected \"${expected}\", got \"${actual}\"")
  endif()
endfunction()

function(expect_content file expected)
  file(READ "${FOLDER}/${file}" actual)
  expect("The content of ${file}" "${actual}" "${expected}")
endfunction()

function(expect_files folder expected)
  file(GLOB actual RELATIVE "${FOLDER}/${folder}" "${FOLDER}/${folder}/*")
  expect("The files in ${folder}" "${actual}" "${expected}")
endfunction()

function(lay_out name)
  execute_process(
    COMMAND "${CMAKE_COMMAND}" -D "SHIPPED=${FOLDER}/shipped/${name}" -D
            "DIRECTORY=${FOLDER}/program" ${ARGN} -P "${DATA}/lay_out.cmake"
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Makes the database from one script, and expects that to fail.
function(fail_to_make database sql)
  file(WRITE "${FOLDER}/script.sql" "${sql}")
  execute_process(
    COMMAND "${CMAKE_COMMAND}" -D "SQLITE3=${SQLITE3}" -D "DATABASE=${FOLDER}/${database}" -D
            "SCRIPTS=script.sql" -P "${DATA}/make_database.cmake"
    WORKING_DIRECTORY "${FOLDER}"
    OUTPUT_QUIET ERROR_QUIET
    RESULT_VARIABLE result)
  if(result EQUAL 0)
    message(FATAL_ERROR "A database was made from ${sql}")
  endif()
endfunction()

file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}/program")
file(WRITE "${FOLDER}/shipped/Ondara2.mdb" "shipped people")
file(WRITE "${FOLDER}/shipped/Interp.mdb" "shipped texts")

if(BEHAVIOUR STREQUAL "LaysOutAPersonDatabaseWhereThereIsNone")
  lay_out(Ondara2.mdb -D KEEP=ON)
  expect_content(program/Ondara2.mdb "shipped people")

elseif(BEHAVIOUR STREQUAL "NeverOverwritesAPersonDatabase")
  file(WRITE "${FOLDER}/program/Ondara2.mdb" "a person's own")
  lay_out(Ondara2.mdb -D KEEP=ON)
  expect_content(program/Ondara2.mdb "a person's own")

elseif(BEHAVIOUR STREQUAL "TakesAPersonDatabaseForOneWhateverTheCaseOfItsName")
  file(WRITE "${FOLDER}/program/ONDARA2.MDB" "a person's own")
  lay_out(Ondara2.mdb -D KEEP=ON)
  expect_files(program ONDARA2.MDB)
  expect_content(program/ONDARA2.MDB "a person's own")

elseif(BEHAVIOUR STREQUAL "KeepsALinkThatLeadsNowhereInThePlaceOfAPersonDatabase")
  file(CREATE_LINK "${FOLDER}/a disk that is not there" "${FOLDER}/program/Ondara2.mdb" SYMBOLIC)
  lay_out(Ondara2.mdb -D KEEP=ON)
  expect_files(program Ondara2.mdb)
  if(NOT IS_SYMLINK "${FOLDER}/program/Ondara2.mdb")
    message(FATAL_ERROR "The link was replaced")
  endif()

elseif(BEHAVIOUR STREQUAL "ReplacesAnInterpretationDatabase")
  file(WRITE "${FOLDER}/program/Interp.mdb" "texts of yesterday")
  lay_out(Interp.mdb)
  expect_content(program/Interp.mdb "shipped texts")

elseif(BEHAVIOUR STREQUAL "LeavesNothingBesideWhatItLaysOut")
  file(WRITE "${FOLDER}/program/Ondara2.mdb.new" "left by a build that was cut short")
  lay_out(Ondara2.mdb -D KEEP=ON)
  lay_out(Interp.mdb)
  expect_files(program "Interp.mdb;Ondara2.mdb")

elseif(BEHAVIOUR STREQUAL "KeepsTheOldDatabaseWhenAScriptFails")
  fail_to_make(shipped/Interp.mdb "CREATE TABLE HLC (Emot); INSERT INTO Nowhere VALUES (1);")
  expect_content(shipped/Interp.mdb "shipped texts")
  expect_files(shipped "Interp.mdb;Ondara2.mdb")

elseif(BEHAVIOUR STREQUAL "KeepsTheOldDatabaseWhenAPersonHasNoCategory")
  file(READ "${DATA}/people_schema.sql" schema)
  fail_to_make(
    shipped/Ondara2.mdb
    "${schema} PRAGMA foreign_keys = OFF;
     INSERT INTO Data (Name, Birthdate, CatID) VALUES ('Nobody', 0, 7);")
  expect_content(shipped/Ondara2.mdb "shipped people")
  expect_files(shipped "Interp.mdb;Ondara2.mdb")

else()
  message(FATAL_ERROR "No behaviour is called \"${BEHAVIOUR}\"")
endif()
