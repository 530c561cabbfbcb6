# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Debian packages (scripts/package): the runtime library, the development files and the
# tools, one package per group of install components:
#   libtelecfg1     component runtime   the shared library (named after its SONAME)
#   libtelecfg-dev  component dev       headers, CMake package, telecfg.pc, the link name
#   telecfg-tools   components tools and designer   telecfg-fw, the Designer plugin
set(telecfg_runtime_package libtelecfg${PROJECT_VERSION_MAJOR})
# The Debian revision of the packages: the first packaging of each release.
set(telecfg_deb_release 1)

# Each package carries the licence and a changelog, as Debian policy asks.
set(telecfg_docdir ${PROJECT_BINARY_DIR}/package-doc)
file(READ ${PROJECT_SOURCE_DIR}/LICENSE telecfg_license)
file(WRITE ${telecfg_docdir}/copyright
    "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\n"
    "Upstream-Name: telecfg\n\n"
    "Files: *\nCopyright: 2026 The telecfg authors\nLicense: MIT\n\n"
    "License: MIT\n")
string(REGEX REPLACE "\n\n" "\n.\n" telecfg_license_body "${telecfg_license}")
string(REGEX REPLACE "\n([^\n])" "\n \\1" telecfg_license_body "${telecfg_license_body}")
file(APPEND ${telecfg_docdir}/copyright " ${telecfg_license_body}")
string(TIMESTAMP telecfg_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${telecfg_docdir}/changelog.Debian
    "telecfg (${PROJECT_VERSION}-${telecfg_deb_release}) unstable; urgency=medium\n\n"
    "  * Release ${PROJECT_VERSION}; the changes are listed in the project's CHANGELOG.md.\n\n"
    " -- The telecfg authors <telecfg@example.invalid>  ${telecfg_date}\n")
find_program(GZIP_EXECUTABLE gzip)
if(GZIP_EXECUTABLE)
  execute_process(COMMAND ${GZIP_EXECUTABLE} -9nf ${telecfg_docdir}/changelog.Debian)
endif()
foreach(pair "runtime;${telecfg_runtime_package}" "dev;libtelecfg-dev" "tools;telecfg-tools")
  list(GET pair 0 component)
  list(GET pair 1 package)
  install(FILES ${telecfg_docdir}/copyright ${telecfg_docdir}/changelog.Debian.gz
      DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} COMPONENT ${component})
endforeach()

set(CPACK_PACKAGE_NAME telecfg)
set(CPACK_PACKAGE_VENDOR "The telecfg authors")
set(CPACK_PACKAGE_CONTACT "The telecfg authors <telecfg@example.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEBIAN_PACKAGE_RELEASE ${telecfg_deb_release})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The tools link the library of this very build: dpkg-shlibdeps finds it here, and the
# tools' package names the library's package itself (below).
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/telecfg)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://example.invalid/telecfg")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

include(CPackComponent)
cpack_add_component_group(lib)
cpack_add_component_group(dev)
cpack_add_component_group(tools)
cpack_add_component(runtime GROUP lib)
cpack_add_component(dev GROUP dev DEPENDS runtime)
cpack_add_component(tools GROUP tools)
cpack_add_component(designer GROUP tools)

set(CPACK_DEBIAN_LIB_PACKAGE_NAME ${telecfg_runtime_package})
# The shared library's package has the linker cache rebuilt by a trigger.
file(WRITE ${telecfg_docdir}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIB_PACKAGE_CONTROL_EXTRA ${telecfg_docdir}/triggers)
set(CPACK_DEBIAN_LIB_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIB_DESCRIPTION
    "telecfg gives a telematics configurator form controls bound to its
parameter table, the device's firmware files with their checksums,
compression and encipherment, small dialogs and the country and mobile
operator table.

This package holds the shared library.")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME libtelecfg-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "${telecfg_runtime_package} (= ${PROJECT_VERSION}-${telecfg_deb_release}), qtbase5-dev")
set(CPACK_DEBIAN_DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEV_DESCRIPTION
    "telecfg gives a telematics configurator form controls bound to its
parameter table, the device's firmware files, small dialogs and the
country and mobile operator table.

This package holds the headers, the CMake package, the pkg-config file
and the static library of the controls' default images.")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME telecfg-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS
    "${telecfg_runtime_package} (= ${PROJECT_VERSION}-${telecfg_deb_release})")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION
    "telecfg-fw packs, examines, unpacks and verifies the device's firmware
files without the configurator. The Qt Designer plugin offers the bound
controls and the status label in the form editor.")
include(CPack)
