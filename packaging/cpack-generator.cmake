# Read by CPack before each kind of package. Debian's own changelog is not for others.
if(CPACK_GENERATOR STREQUAL RPM)
  string(REPLACE ";ALL;" ";Unspecified;" CPACK_INSTALL_CMAKE_PROJECTS
    "${CPACK_INSTALL_CMAKE_PROJECTS}")
endif()
