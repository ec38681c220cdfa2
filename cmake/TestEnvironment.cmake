# What ctest gives every test along, whatever the machine has and however the tests were built.
file(WRITE ${CMAKE_BINARY_DIR}/TestEnvironmentOfCTest.cmake
     "set(ENV{LOCPATH} \"${CMAKE_BINARY_DIR}/locales\")
set(ENV{LSAN_OPTIONS} \"print_suppressions=0:suppressions=${CMAKE_SOURCE_DIR}/tests/support/toolkit_leaks.supp\")
")
set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY TEST_INCLUDE_FILES
                                                           ${CMAKE_BINARY_DIR}/TestEnvironmentOfCTest.cmake)

# The locales that LOCPATH points at: tests find these and no others.
add_custom_target(test_locales)

function(add_test_locale name source charset)
  set(directory ${CMAKE_BINARY_DIR}/locales)
  add_custom_command(
    OUTPUT ${directory}/${name}/LC_CTYPE
    COMMAND ${CMAKE_COMMAND} -E make_directory ${directory}
    COMMAND localedef -i ${source} -f ${charset} ${directory}/${name}
    COMMENT "Generating the locale ${name}")
  target_sources(test_locales PRIVATE ${directory}/${name}/LC_CTYPE)
endfunction()

add_test_locale(C.UTF-8 C UTF-8)
add_test_locale(de_DE.UTF-8 de_DE UTF-8)
add_test_locale(ja_JP.UTF-8 ja_JP UTF-8)
add_test_locale(fr_CA.ISO-8859-1 fr_CA ISO-8859-1)
# Known to the C library, but not to the X library.
add_test_locale(de_XX.UTF-8 de_DE UTF-8)
