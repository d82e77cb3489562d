# Lays a shipped database into the program's directory:
#   cmake -D SHIPPED=file -D DIRECTORY=folder [-D KEEP=ON] -P lay_out.cmake
# With KEEP a file of that name that is there already stays as it is, whatever it holds: it is a
# person's own. Names match without regard to case, as in the program. The file is copied under
# another name and then renamed, so a copy that fails leaves nothing half written.
cmake_minimum_required(VERSION 3.25)

cmake_path(GET SHIPPED FILENAME name)
set(new "${DIRECTORY}/${name}.new")

if(KEEP)
  string(TOLOWER "${name}" wanted)
  file(GLOB present RELATIVE "${DIRECTORY}" "${DIRECTORY}/*")
  list(TRANSFORM present TOLOWER)
  if(wanted IN_LIST present)
    return()
  endif()
  set(no_replace NO_REPLACE)
endif()

file(MAKE_DIRECTORY "${DIRECTORY}")
file(REMOVE "${new}")
file(COPY_FILE "${SHIPPED}" "${new}")
file(RENAME "${new}" "${DIRECTORY}/${name}" ${no_replace})
file(REMOVE "${new}") # renaming without replacing leaves a second link
