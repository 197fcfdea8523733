# What every folder's build has in common: language level, warnings, sanitizers, and one function
# each for a library and for a test program.

include(GNUInstallDirs)

option(TAMBOREL_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(TAMBOREL_WERROR "Treat warnings as errors" ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
    set(CMAKE_OBJCXX_COMPILER_LAUNCHER ${CCACHE})
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# In the build, program, module and library stand side by side and find each other there; installed,
# module and library have a folder of their own.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(TAMBOREL_MODULE_DIR ${CMAKE_INSTALL_LIBDIR}/tamborel)
file(RELATIVE_PATH TAMBOREL_BIN_TO_MODULE
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/tamborel)
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/${TAMBOREL_BIN_TO_MODULE}")

add_compile_options(-Wall -Wextra)
# g++ 12 sees overlapping copies in the library's own string concatenation.
add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(TAMBOREL_WERROR)
    add_compile_options(-Werror)
endif()
# Every operation on doubles rounds as it is written: no fused multiply-add.
add_compile_options(-ffp-contract=off)
# CMake knows no language level of Objective-C++ for g++, so it is given here.
add_compile_options("$<$<COMPILE_LANGUAGE:OBJCXX>:-std=c++20;-fconstant-string-class=NSConstantString>")
add_compile_definitions("$<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>")
if(TAMBOREL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1)
    # Reports need lines, not variables, and without the latter it compiles a quarter faster.
    add_compile_options(-g1)
    add_link_options(-fsanitize=address,undefined)
    # Built into each program that tests run, so that it finds no fault either when it only lists cases.
    file(READ ${CMAKE_SOURCE_DIR}/tests/lsan.supp suppressions)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/sanitizer_options.cpp @ONLY CONTENT [[
extern "C" const char* __lsan_default_suppressions() { return R"(@suppressions@)"; }
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
extern "C" const char* __ubsan_default_options() { return "print_stacktrace=1"; }
]])
    set(TAMBOREL_SANITIZER_OPTIONS ${CMAKE_BINARY_DIR}/sanitizer_options.cpp)
endif()

# Where several files are compiled in one go (CMAKE_UNITY_BUILD), those of a folder are.
function(tamborel_unite name)
    set_target_properties(${name} PROPERTIES UNITY_BUILD_MODE GROUP)
    foreach(source ${ARGN})
        get_filename_component(folder ${source} DIRECTORY)
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP "${name}_${folder}")
    endforeach()
endfunction()

# tamborel_library(NAME SOURCES ... LINKS ...): a static library of one folder.
function(tamborel_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    tamborel_unite(${name} ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS})
endfunction()

# tamborel_test_module(NAME SOURCE FOLDER): a small plug-in of the tests', alone in its file, hiding all
# but its entry function.
function(tamborel_test_module name source folder)
    get_filename_component(module ${source} NAME_WE)
    add_library(${name} MODULE ${source})
    target_link_libraries(${name} PRIVATE sdk cocoa)
    # Objective-C classes are never forgotten: what has some stays mapped.
    target_link_options(${name} PRIVATE -Wl,-z,nodelete)
    set_target_properties(${name} PROPERTIES
        PREFIX "" OUTPUT_NAME ${module} SUFFIX ".plugin" LIBRARY_OUTPUT_DIRECTORY ${folder}
        CXX_VISIBILITY_PRESET hidden OBJCXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# tamborel_test(NAME SOURCES ... LINKS ...): a GoogleTest program whose cases CTest knows one by one.
function(tamborel_test name)
    cmake_parse_arguments(ARG "SERIAL" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES} ${TAMBOREL_SANITIZER_OPTIONS})
    tamborel_unite(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gmock GTest::gtest_main)
    # What is tested is optimised in its own library. The assertions need not be: two thirds of all
    # compiling was theirs.
    target_compile_options(${name} PRIVATE -O0)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
        PROPERTIES TIMEOUT 300 RUN_SERIAL ${ARG_SERIAL})
endfunction()
