# Locales for the tests, whatever the machine has installed. ctest lets LOCPATH point at them, so that tests find these
# and no others.
set(TEST_LOCALES ${CMAKE_BINARY_DIR}/locales)
add_custom_target(test_locales)

function(add_test_locale name source charset)
  add_custom_command(
    OUTPUT ${TEST_LOCALES}/${name}/LC_CTYPE
    COMMAND ${CMAKE_COMMAND} -E make_directory ${TEST_LOCALES}
    COMMAND localedef -i ${source} -f ${charset} ${TEST_LOCALES}/${name}
    COMMENT "Generating the locale ${name}")
  target_sources(test_locales PRIVATE ${TEST_LOCALES}/${name}/LC_CTYPE)
endfunction()

add_test_locale(C.UTF-8 C UTF-8)
add_test_locale(de_DE.UTF-8 de_DE UTF-8)
add_test_locale(ja_JP.UTF-8 ja_JP UTF-8)
add_test_locale(fr_CA.ISO-8859-1 fr_CA ISO-8859-1)
# Known to the C library, but not to the X library.
add_test_locale(de_XX.UTF-8 de_DE UTF-8)
