# PHONE_SCRIPTS: every script of this folder and every example, and the scripts that are made here of
# one template each, because they differ in a few words only.
file(GLOB PHONE_SCRIPTS CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*.phone
     ${PROJECT_SOURCE_DIR}/examples/*.phone)

set(snapshots ${CMAKE_CURRENT_LIST_DIR}/snapshots)
set(made ${PROJECT_BINARY_DIR}/tests/phone/made)
file(REMOVE_RECURSE ${made})

# phone_script(NAME TEMPLATE): TEMPLATE.phone.in with variables of the caller for each @variable@.
macro(phone_script name template)
  configure_file(${snapshots}/../${template}.phone.in ${made}/${name}.phone @ONLY)
  list(APPEND PHONE_SCRIPTS ${made}/${name}.phone)
endmacro()

foreach(vendor com.zentrik com.morquel ru.tavisk com.glimmerfen)
  string(REPLACE . - name ${vendor})
  phone_script(companions-grupi-of-${name} companions-grupi)
endforeach()

foreach(locale ar_SA arc_SY de_DE it_IT ko_KR ms_MY zh_CN)
  phone_script(resources-no-plural-in-${locale} resources-no-plural-in)
endforeach()

set(subjects current end)
set(pages CurrentTimerView OnTimerEndsSettingsView)
foreach(subject page IN ZIP_LISTS subjects pages)
  phone_script(${subject}-frame-is-its-superviews panel-frame-is-its-superviews)
endforeach()

set(languages english german arabic)
set(locales en_US de_DE ar_SA)
set(rows "The fade takes" "Ausblenden dauert" "مدة الخفض")
set(fields Device Gerät الجهاز)
foreach(language locale row field IN ZIP_LISTS languages locales rows fields)
  phone_script(pane-drawn-in-${language} pane-drawn-in)
  set(turn)
  set(held upright)
  phone_script(panel-drawn-in-${language}-upright panel-drawn)
  set(turn "rotate landscape-left\nadvance 1s")
  set(held on-its-side)
  phone_script(panel-drawn-in-${language}-on-its-side panel-drawn)
endforeach()
