# Makes a database file from SQL scripts:
#   cmake -D SQLITE3=tool -D DATABASE=file -D SCRIPTS=script;script -P make_database.cmake
# The scripts lie in the current directory. The file is made under another name, checked, and then
# renamed, so a script that fails leaves the file as it was.
cmake_minimum_required(VERSION 3.25)

set(new "${DATABASE}.new")
file(REMOVE "${new}" "${new}-journal")

list(TRANSFORM SCRIPTS PREPEND ".read " OUTPUT_VARIABLE reads)
execute_process(COMMAND "${SQLITE3}" -batch -bail "${new}" ${reads} RESULT_VARIABLE failed)
if(NOT failed)
  execute_process(
    COMMAND "${SQLITE3}" -batch -noheader -list "${new}" "PRAGMA integrity_check"
            "PRAGMA foreign_key_check"
    OUTPUT_VARIABLE faults OUTPUT_STRIP_TRAILING_WHITESPACE
    RESULT_VARIABLE failed)
endif()

if(failed OR NOT faults STREQUAL "ok")
  file(REMOVE "${new}" "${new}-journal")
  message(FATAL_ERROR "${DATABASE} could not be made from ${SCRIPTS}. ${faults}")
endif()
file(RENAME "${new}" "${DATABASE}")
