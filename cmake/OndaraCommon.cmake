# What every target of Ondara shares: the language, the warnings and the sanitizers.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(ondara_common INTERFACE)
target_include_directories(ondara_common INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_options(ondara_common INTERFACE -Wall -Wextra -Wshadow -Wconversion)
target_compile_definitions(
  ondara_common INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)

if(ONDARA_WERROR)
  target_compile_options(ondara_common INTERFACE -Werror)
endif()

if(ONDARA_SANITIZE)
  target_compile_options(ondara_common INTERFACE -fsanitize=address,undefined
                                                 -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ondara_common INTERFACE -fsanitize=address,undefined)
endif()
