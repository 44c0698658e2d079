# What the hosts draw of icons/*.svg, which hold paths on a grid of 24 by 24 in absolute commands
# (M L C Q Z, each written out), filled where they say so, else stroked.
file(GLOB iconFiles CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/icons/*.svg)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${iconFiles})

# hill-far.svg is called HillFar.
function(icon_name out file)
  get_filename_component(words ${file} NAME_WE)
  string(REPLACE "-" ";" words ${words})
  set(name "")
  foreach(word IN LISTS words)
    string(SUBSTRING ${word} 0 1 first)
    string(SUBSTRING ${word} 1 -1 rest)
    string(TOUPPER ${first} first)
    string(APPEND name ${first}${rest})
  endforeach()
  set(${out} ${name} PARENT_SCOPE)
endfunction()

# Path data as calls of a QPainterPath.
function(path_calls out path data)
  set(calls "")
  string(REGEX MATCHALL "[A-Za-z][^A-Za-z]*" commands "${data}")
  foreach(command IN LISTS commands)
    string(STRIP "${command}" command)
    string(SUBSTRING "${command}" 0 1 letter)
    string(REGEX MATCHALL "[0-9.-]+" numbers "${command}")
    list(JOIN numbers ", " numbers)
    if(letter STREQUAL "M")
      set(call "moveTo(${numbers})")
    elseif(letter STREQUAL "L")
      set(call "lineTo(${numbers})")
    elseif(letter STREQUAL "C")
      set(call "cubicTo(${numbers})")
    elseif(letter STREQUAL "Q")
      set(call "quadTo(${numbers})")
    elseif(letter STREQUAL "Z")
      set(call "closeSubpath()")
    else()
      message(FATAL_ERROR "an icon may hold the path commands M, L, C, Q and Z, and not ${letter}")
    endif()
    string(APPEND calls "      icon.${path}.${call};\n")
  endforeach()
  set(${out} "${calls}" PARENT_SCOPE)
endfunction()

# A source file with the paths of each icon.
function(icons_to_cpp file)
  set(cases "")
  foreach(iconFile IN LISTS iconFiles)
    icon_name(name ${iconFile})
    string(APPEND cases "    case IconItem::${name}:\n")
    file(READ ${iconFile} svg)
    string(REGEX MATCHALL "<path[^>]*>" paths "${svg}")
    foreach(each IN LISTS paths)
      string(REGEX MATCH " d=\"([^\"]*)\"" found "${each}")
      set(data "${CMAKE_MATCH_1}")
      set(part stroked)
      if(each MATCHES "fill=\"currentColor\"")
        set(part filled)
      endif()
      path_calls(calls ${part} "${data}")
      string(APPEND cases "${calls}")
    endforeach()
    string(APPEND cases "      break;\n")
  endforeach()
  file(CONFIGURE OUTPUT ${file} @ONLY CONTENT [[// Made from interface/icons.
#include "interface/qml/items/IconPaths.h"

namespace leafund {

IconPaths pathsOf(IconItem::Icon which) {
  IconPaths icon;
  switch (which) {
@cases@  }
  return icon;
}

}  // namespace leafund
]])
endfunction()

# The icons of those names as symbols of a page. Hills are as wide as it is.
function(icons_to_symbols out)
  set(symbols "")
  foreach(name IN LISTS ARGN)
    file(READ ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/icons/${name}.svg svg)
    string(REGEX REPLACE "^<svg[^>]*>|</svg>|\n *" "" svg "${svg}")
    string(REGEX REPLACE "([A-Z]) " "\\1" svg "${svg}")
    set(fit "")
    if(name MATCHES "^hill")
      set(fit " preserveAspectRatio=\"none\"")
    endif()
    string(APPEND symbols "  <symbol id=\"${name}\" viewBox=\"0 0 24 24\"${fit}>${svg}</symbol>\n")
  endforeach()
  set(${out} "${symbols}" PARENT_SCOPE)
endfunction()
