# The tests of the bundle's files; those of the phone's build, too. To be included.
foreach(subject strings translations icons info)
  add_test(NAME resources.${subject}
           COMMAND ${Python3_EXECUTABLE} -m unittest ${subject}_test
           WORKING_DIRECTORY ${CMAKE_CURRENT_LIST_DIR})
  set_tests_properties(resources.${subject} PROPERTIES ENVIRONMENT
    "BUNDLE=${DOZEWELL_BUNDLE};ICON_SOURCES=${PROJECT_SOURCE_DIR}/tweak/resources/images;VERSION=${PROJECT_VERSION};PYTHONDONTWRITEBYTECODE=1")
endforeach()
