# How files get into the resource bundle. Relative paths are those inside the bundle.
#
#   bundle_file(PATH SOURCE)       copies a file
#   bundle_icon(NAME POINTS)       renders images/NAME.svg for the three scales of screens
#   bundle_layout(NAME)            compiles layouts/NAME.xib
#   bundle_output(PATH)            what a custom command of the caller makes at ${DOZEWELL_BUNDLE}
#   bundle_finish(TARGET)          the target that makes all of them, and nothing else is there
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

set(DOZEWELL_PACKAGE "${PROJECT_BINARY_DIR}/package"
    CACHE INTERNAL "The files that the package installs, as they lie on the phone")
set(DOZEWELL_BUNDLE
    "${DOZEWELL_PACKAGE}/var/jb/Library/Application Support/Dozewell2Bundle.bundle"
    CACHE INTERNAL "The resource bundle among them")
set(bundle_outputs)

macro(bundle_output path)
  list(APPEND bundle_outputs "${DOZEWELL_BUNDLE}/${path}")
endmacro()

macro(bundle_file path source)
  add_custom_command(OUTPUT "${DOZEWELL_BUNDLE}/${path}"
                     COMMAND ${CMAKE_COMMAND} -E copy ${source} "${DOZEWELL_BUNDLE}/${path}"
                     DEPENDS ${source} COMMENT "Bundle: ${path}" VERBATIM)
  bundle_output(${path})
endmacro()

macro(bundle_icon name points)
  foreach(scale 1 2 3)
    set(file ${name}@${scale}x.png)
    if(scale EQUAL 1)
      set(file ${name}.png)
    endif()
    math(EXPR pixels "${points} * ${scale}")
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/images/${name}.svg)
    add_custom_command(OUTPUT "${DOZEWELL_BUNDLE}/${file}"
                       COMMAND ${RSVG_CONVERT} --width ${pixels} --height ${pixels}
                               --output "${DOZEWELL_BUNDLE}/${file}" ${source}
                       DEPENDS ${source} COMMENT "Bundle: ${file}" VERBATIM)
    bundle_output(${file})
  endforeach()
endmacro()

macro(bundle_layout name)
  set(source ${CMAKE_CURRENT_SOURCE_DIR}/layouts/${name}.xib)
  add_custom_command(OUTPUT "${DOZEWELL_BUNDLE}/${name}.nib"
                     COMMAND ${CMAKE_COMMAND} -E make_directory "${DOZEWELL_BUNDLE}"
                     COMMAND dozewell-nibc ${source} "${DOZEWELL_BUNDLE}/${name}.nib"
                     DEPENDS ${source} dozewell-nibc COMMENT "Bundle: ${name}.nib" VERBATIM)
  bundle_output(${name}.nib)
endmacro()

macro(bundle_finish target)
  # A package must not carry what an earlier build left behind.
  file(GLOB_RECURSE present "${DOZEWELL_BUNDLE}/*")
  foreach(file ${present})
    if(NOT file IN_LIST bundle_outputs)
      file(REMOVE "${file}")
    endif()
  endforeach()
  file(MAKE_DIRECTORY "${DOZEWELL_BUNDLE}")
  add_custom_target(${target} ALL DEPENDS ${bundle_outputs})
endmacro()
