# ${MAKE_SETTINGS} WHAT PATH... makes what shows the settings to people, from ${SETTINGS_SOURCES}.

set(settings_folder ${CMAKE_CURRENT_LIST_DIR})
file(GLOB SETTINGS_SOURCES CONFIGURE_DEPENDS
     ${settings_folder}/*.py ${settings_folder}/texts/*.strings
     ${PROJECT_SOURCE_DIR}/tweak/resources/*.lproj/*.strings)
list(APPEND SETTINGS_SOURCES ${settings_folder}/wording.json
     ${PROJECT_SOURCE_DIR}/tweak/settings/Settings.def)
set(MAKE_SETTINGS ${CMAKE_COMMAND} -E env PYTHONDONTWRITEBYTECODE=1 ${Python3_EXECUTABLE}
                  ${settings_folder}/make.py)
