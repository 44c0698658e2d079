# tokens_to_qml(FILE) writes the tokens of tokens.json as the singleton Theme of the window,
# tokens_to_cpp(FILE) its lengths as constants, tokens_to_css(FILE) all as custom properties for the
# page. A changed token configures again.
set(tokensFile ${CMAKE_CURRENT_LIST_DIR}/tokens.json)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${tokensFile})
file(READ ${tokensFile} tokens)

# The members of an object that are none of the format's own.
function(token_names out)
  string(JSON last LENGTH "${tokens}" ${ARGN})
  math(EXPR last "${last} - 1")
  set(names "")
  foreach(i RANGE ${last})
    string(JSON name MEMBER "${tokens}" ${ARGN} ${i})
    if(NOT name MATCHES "^\\$")
      list(APPEND names ${name})
    endif()
  endforeach()
  set(${out} ${names} PARENT_SCOPE)
endfunction()

# A colour of a mode, or of the mode it falls back to.
function(token_colour out name)
  foreach(mode IN LISTS ARGN)
    string(JSON value ERROR_VARIABLE missing GET "${tokens}" color ${mode} ${name} $value)
    if(NOT missing)
      break()
    endif()
  endforeach()
  set(${out} ${value} PARENT_SCOPE)
endfunction()

# QML writes the transparency of a colour in front.
function(qml_colour out name)
  token_colour(value ${name} ${ARGN})
  string(REGEX REPLACE "^#(......)(..)$" "#\\2\\1" value ${value})
  set(${out} "\"${value}\"" PARENT_SCOPE)
endfunction()

# One of two where they differ.
function(qml_choice out condition then else)
  if(then STREQUAL else)
    set(${out} ${then} PARENT_SCOPE)
  elseif(then MATCHES " \\? ")
    set(${out} "${condition} ? (${then}) : ${else}" PARENT_SCOPE)
  else()
    set(${out} "${condition} ? ${then} : ${else}" PARENT_SCOPE)
  endif()
endfunction()

function(tokens_to_qml file)
  set(lines "")
  token_names(colours color day)
  foreach(name IN LISTS colours)
    qml_colour(value ${name} day)
    qml_colour(night ${name} night day)
    qml_colour(contrast ${name} contrast day)
    qml_colour(nightContrast ${name} nightContrast night day)
    qml_choice(value Desktop.highContrast ${contrast} ${value})
    qml_choice(night Desktop.highContrast ${nightContrast} ${night})
    qml_choice(value Desktop.night ${night} ${value})
    string(APPEND lines "    readonly property color ${name}: ${value}\n")
  endforeach()
  foreach(group IN ITEMS type space motion)
    token_names(names ${group})
    foreach(name IN LISTS names)
      string(JSON value GET "${tokens}" ${group} ${name} $value)
      string(REGEX REPLACE "(px|ms)$" "" value ${value})
      set(kind real)
      if(group STREQUAL "type")
        math(EXPR whole "${value} * 3 / 4")
        math(EXPR rest "${value} * 3 % 4 * 25")
        set(value ${whole}.${rest})
      elseif(group STREQUAL "motion")
        set(kind int)
      endif()
      string(JSON other ERROR_VARIABLE missing GET "${tokens}" ${group}InContrast ${name} $value)
      if(NOT missing)
        string(REGEX REPLACE "px$" "" other ${other})
        set(value "Desktop.highContrast ? ${other} : ${value}")
      endif()
      string(APPEND lines "    readonly property ${kind} ${name}: ${value}\n")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT ${file} @ONLY CONTENT [[// Made from interface/tokens.json.
pragma Singleton
import QtQuick
import Leafund

QtObject {
@lines@    readonly property color none: "transparent"
}
]])
endfunction()

function(tokens_to_cpp file)
  set(lines "")
  token_names(names space)
  foreach(name IN LISTS names)
    string(JSON value GET "${tokens}" space ${name} $value)
    string(REGEX REPLACE "px$" "" value ${value})
    string(SUBSTRING ${name} 0 1 first)
    string(TOUPPER ${first} first)
    string(SUBSTRING ${name} 1 -1 rest)
    string(APPEND lines "constexpr double k${first}${rest} = ${value};\n")
  endforeach()
  file(CONFIGURE OUTPUT ${file} @ONLY CONTENT [[// Made from interface/tokens.json. In points.
#pragma once

namespace leafund::tokens {

@lines@
}  // namespace leafund::tokens
]])
endfunction()

function(css_property out name value)
  string(REGEX REPLACE "([A-Z])" "-\\1" name ${name})
  string(TOLOWER ${name} name)
  set(${out} "  --${name}: ${value};\n" PARENT_SCOPE)
endfunction()

# What a mode of a group says itself, under the condition that it is for.
function(css_mode out condition)
  set(lines "")
  token_names(names ${ARGN})
  foreach(name IN LISTS names)
    string(JSON value GET "${tokens}" ${ARGN} ${name} $value)
    css_property(line ${name} ${value})
    string(APPEND lines "${line}")
  endforeach()
  set(${out} "@media ${condition} { :root {\n${lines}} }\n" PARENT_SCOPE)
endfunction()

function(tokens_to_css file)
  set(lines "")
  foreach(group IN ITEMS "color;day" type space motion)
    token_names(names ${group})
    foreach(name IN LISTS names)
      string(JSON value GET "${tokens}" ${group} ${name} $value)
      if(group STREQUAL "type")
        string(REGEX REPLACE "px$" "" value ${value})
        set(value "calc(${value}rem / 16)")
      endif()
      css_property(line ${name} ${value})
      string(APPEND lines "${line}")
    endforeach()
  endforeach()
  css_mode(night "(prefers-color-scheme: dark)" color night)
  css_mode(contrast "(prefers-contrast: more) and (prefers-color-scheme: light)" color contrast)
  css_mode(nightContrast "(prefers-contrast: more) and (prefers-color-scheme: dark)" color nightContrast)
  css_mode(spaceInContrast "(prefers-contrast: more)" spaceInContrast)
  file(CONFIGURE OUTPUT ${file} @ONLY CONTENT
    "/* Made from interface/tokens.json. */\n:root {\n${lines}}\n${night}${contrast}${nightContrast}${spaceInContrast}")
endfunction()
