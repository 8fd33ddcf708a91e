# Language, warnings and sanitizers, the same for all of our targets. A project that embeds this one keeps its own.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    find_program(CCACHE ccache)
    if(CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
    endif()
endif()

option(MIREL_WARNINGS_AS_ERRORS "Stop at warnings, as the presets do" OFF)
set(MIREL_SANITIZE "" CACHE STRING "Sanitizers of the whole build: address,undefined or thread")

# Targets made below here are ours; those of others that link them see neither our warnings nor our definitions.
define_property(TARGET PROPERTY MIREL_OURS INITIALIZE_FROM_VARIABLE MIREL_OURS)
set(MIREL_OURS ON)
set(OURS "$<BOOL:$<TARGET_PROPERTY:MIREL_OURS>>")

add_library(mirel_settings INTERFACE)
target_compile_features(mirel_settings INTERFACE cxx_std_20)
target_include_directories(mirel_settings INTERFACE ${PROJECT_SOURCE_DIR}/src)
# A char holds channels and -1, in inline functions of headers too; on ARM it has no sign of itself.
target_compile_options(mirel_settings INTERFACE -fsigned-char
    "$<${OURS}:-Wall;-Wextra;-Wshadow;-Wconversion;-Woverloaded-virtual>")
# GCC 12 takes the inlined insert() of "text" + string() for an overlapping copy once it optimises as far as -O3 (its own
# bug 105651, cured in 13). The sum stands wherever texts are made, so it is the warning that goes, for this case alone.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(mirel_settings INTERFACE "$<$<AND:${OURS},$<CONFIG:Release>>:-Wno-restrict>")
endif()
if(MIREL_WARNINGS_AS_ERRORS)
    target_compile_options(mirel_settings INTERFACE "$<${OURS}:-Werror>")
endif()
if(WIN32)
    target_compile_definitions(mirel_settings INTERFACE
        "$<${OURS}:WIN32_LEAN_AND_MEAN;NOMINMAX;_WIN32_WINNT=0x0A00>")
else()
    target_link_libraries(mirel_settings INTERFACE pthread)
endif()
if(MIREL_FUZZ)
    # Only the targets themselves link the fuzzer's main().
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(MIREL_SANITIZE)
    add_compile_options(-fsanitize=${MIREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${MIREL_SANITIZE})
endif()
