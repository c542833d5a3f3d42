# The package that a phone installs, made of what the build has made and checked. To be included
# where the slices are: DOZEWELL_DEB is its file, DOZEWELL_DEB_FILES says what it installs where.

set(maintainer_placeholder "Corvane <dozewell@corvane.example>")
set(DOZEWELL_MAINTAINER ${maintainer_placeholder} CACHE STRING
    "Whom the package's users can write to: NAME <ADDRESS>")

set(DOZEWELL_DEB ${PROJECT_BINARY_DIR}/com.corvane.dozewell2_${PROJECT_VERSION}_iphoneos-arm64.deb)
set(DOZEWELL_CONTROL ${PROJECT_BINARY_DIR}/control)
configure_file(${CMAKE_CURRENT_LIST_DIR}/control.in ${DOZEWELL_CONTROL} @ONLY)

set(injected /var/jb/Library/MobileSubstrate/DynamicLibraries)
set(DOZEWELL_DEB_FILES
    "${injected}/Dozewell2.dylib=${fat}"
    "${injected}/Dozewell2.plist=${CMAKE_CURRENT_LIST_DIR}/Dozewell2.plist"
    "/var/jb/Library/Application Support/Dozewell2Bundle.bundle=${DOZEWELL_BUNDLE}"
    "/var/jb/Library/PreferenceLoader/Preferences/Dozewell2=${DOZEWELL_PANE}")
set(members ${CMAKE_CURRENT_LIST_DIR}/members.txt)

set(PACKAGE_PYTHON ${CMAKE_COMMAND} -E chdir ${PHONE_DIR} ${PHONE_PYTHON})
set(PACKAGE_MAKE ${PACKAGE_PYTHON} -m package.make --control ${DOZEWELL_CONTROL})
# Each time, because it costs nothing and SOURCE_DATE_EPOCH may have changed.
add_custom_target(dozewell-package ALL
  COMMAND ${PACKAGE_MAKE} --output ${DOZEWELL_DEB} --placeholder ${repository_placeholder}
          --placeholder ${maintainer_placeholder} ${DOZEWELL_DEB_FILES}
  DEPENDS ${fat} COMMENT "Packing ${DOZEWELL_DEB}" VERBATIM)
add_dependencies(dozewell-package dozewell-device dozewell-bundle dozewell-pane)

# package_check(CHECK [REFERENCE...]): a test that runs one check.
function(package_check name)
  add_test(NAME package.${name}
           COMMAND ${PACKAGE_PYTHON} -m package.check ${name} ${DOZEWELL_DEB} ${ARGN})
endfunction()

package_check(archive)
package_check(control ${DOZEWELL_CONTROL})
package_check(members ${members})
package_check(owners)
package_check(md5sums)
package_check(sources ${DOZEWELL_DEB_FILES})
package_check(slices ${slice_arm64} ${slice_arm64e})
package_check(filter)
package_check(paths ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})
