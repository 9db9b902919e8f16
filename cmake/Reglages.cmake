# The settings every target of the project shares, tests and benchmarks included.
function(reglages cible)
    target_compile_features(${cible} PUBLIC cxx_std_20)
    set_target_properties(${cible} PROPERTIES CXX_EXTENSIONS OFF)
    target_include_directories(${cible} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    if(MSVC) # its /fp:precise, the default, fuses no product and sum
        target_compile_options(${cible} PRIVATE /W4 /utf-8 /permissive-)
    else()
        target_compile_options(${cible} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
            -Woverloaded-virtual -Wnon-virtual-dtor
            # Results must not depend on whether the compiler fuses a product and a sum.
            -ffp-contract=off)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # g++ 12 raises it falsely on sums of strings (its bug 105651).
        target_compile_options(${cible} PRIVATE -Wno-restrict)
    endif()
    if(ASSAINISSEURS)
        target_compile_options(${cible} PRIVATE -fsanitize=${ASSAINISSEURS}
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${cible} PRIVATE -fsanitize=${ASSAINISSEURS})
    endif()
    if(AVEC_FUZZ)
        if(NOT ASSAINISSEURS)
            message(FATAL_ERROR "AVEC_FUZZ needs ASSAINISSEURS (preset fuzz)")
        endif()
        # The libraries report their coverage too: without it the fuzzer works blindly.
        target_compile_options(${cible} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    if(EN_UN_BLOC)
        set_target_properties(${cible} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)
        # What only the joining of files brings about; clang-tidy reads each file by itself.
        target_compile_options(${cible} PRIVATE -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
endfunction()

# bibliotheque(name SOURCES ... DEPENDANCES ...): one static library for one folder of src/.
function(bibliotheque nom)
    cmake_parse_arguments(B "" "" "SOURCES;DEPENDANCES" ${ARGN})
    add_library(${nom} STATIC ${B_SOURCES})
    reglages(${nom})
    target_link_libraries(${nom} PUBLIC ${B_DEPENDANCES})
endfunction()

# suite_de_tests(folder SOURCES ... DEPENDANCES ...): one GoogleTest program for one folder.
function(suite_de_tests dossier)
    cmake_parse_arguments(S "" "" "SOURCES;DEPENDANCES" ${ARGN})
    set(cible test_${dossier})
    add_executable(${cible} ${S_SOURCES})
    reglages(${cible})
    target_include_directories(${cible} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${cible} PRIVATE
        RACINE_DU_PROJET="${PROJECT_SOURCE_DIR}" DONNEES="${PROJECT_SOURCE_DIR}/tests/donnees")
    if(NOT MSVC) # what is tested is optimised; the tests themselves compile in a third of the time
        target_compile_options(${cible} PRIVATE -O0)
    endif()
    target_link_libraries(${cible} PRIVATE ${S_DEPENDANCES} GTest::gtest_main)
    gtest_discover_tests(${cible} TEST_PREFIX ${PREFIXE_TESTS}${dossier}. DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 300)
endfunction()
