# The Debian package, which tools/package builds. Who builds it is its contact, where the usual variables tell.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "xqenclientui maintainers <maintainers@xqenclientui.invalid>")
if(DEFINED ENV{DEBEMAIL})
  set(CPACK_PACKAGE_CONTACT "$ENV{DEBFULLNAME} <$ENV{DEBEMAIL}>")
endif()
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION x11)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "user interface of an endpoint-management agent")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "An agent that runs as a service without a display starts this program with two
pipes. It shows the person at the machine which actions are pending, and tells
the agent what that person decided: take them, cancel them, or put them off.
.
It works on every desktop that runs the X Window System, and comes with
translations into German, French and Japanese.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# A server's built-in fonts are Latin; letters that they lack show as wrong ones.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xfonts-base)
# The checker of translations and the example of a client alone need it, which no desktop does.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS python3)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Of directories and files, whatever the builder's umask is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
include(CPack)
