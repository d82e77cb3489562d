# What makes a program of Windows of ours: its icon, its version, and the libraries beside it.
enable_language(RC)

# The full path of a library that the compiler brings.
function(library_of_compiler variable library)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}
                  OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${variable} "${path}" PARENT_SCOPE)
endfunction()

# copy_beside(TARGET FOLDER file...): copies files into a folder of the program's directory.
function(copy_beside target folder)
  set(destination "$<TARGET_FILE_DIR:${target}>/${folder}")
  add_custom_command(
    TARGET ${target} POST_BUILD
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${destination}"
    COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${ARGN} "${destination}"
    COMMAND_EXPAND_LISTS VERBATIM)
endfunction()

# ondara_windows_program(TARGET RESOURCES): gives a program its resources, and lays what it needs to
# start into its directory.
function(ondara_windows_program target resources)
  set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  configure_file("${resources}" "${script}" @ONLY)
  set_source_files_properties("${script}" PROPERTIES OBJECT_DEPENDS "${ONDARA_ICON}")
  target_sources(${target} PRIVATE "${script}")
  add_dependencies(${target} icon)

  copy_beside(${target} . $<TARGET_RUNTIME_DLLS:${target}>)
  copy_beside(${target} platforms $<TARGET_FILE:Qt6::QWindowsIntegrationPlugin>)
  copy_beside(${target} styles $<TARGET_FILE:Qt6::QWindowsVistaStylePlugin>)
  foreach(library libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
    library_of_compiler(path ${library})
    copy_beside(${target} . "${path}")
  endforeach()
endfunction()
