# Language, warnings and sanitizers, the same for all of our targets.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

set(MIREL_SANITIZE "" CACHE STRING "Sanitizers of the whole build: address,undefined or thread")

add_library(mirel_settings INTERFACE)
target_compile_options(mirel_settings INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Woverloaded-virtual -Werror)
target_include_directories(mirel_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(WIN32)
    target_compile_definitions(mirel_settings INTERFACE
        WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
else()
    target_link_libraries(mirel_settings INTERFACE pthread)
endif()
option(MIREL_FUZZ "Build the fuzz targets (clang only)" OFF)
if(MIREL_FUZZ)
    # Only the targets themselves link the fuzzer's main().
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(MIREL_SANITIZE)
    add_compile_options(-fsanitize=${MIREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${MIREL_SANITIZE})
endif()
