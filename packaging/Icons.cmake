# The icon as it was drawn and, where rsvg-convert is there to make them, as pictures in the sizes
# that desktops ask for. Every desktop that matters draws the SVG, too. The picture beside it is what
# rsvg-convert makes of it at 64 by 64; it is compiled in, for the window itself.
set(drawing ${CMAKE_CURRENT_SOURCE_DIR}/icon/leafund.svg)
set(iconFolder ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${drawing}
  DESTINATION ${iconFolder}/scalable/apps RENAME ${appId}.svg COMPONENT app)

find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
  message(STATUS "No rsvg-convert (librsvg2-bin): the icon is installed as SVG alone")
  return()
endif()
foreach(size 48 64 96 128 192 256 512)
  set(icon ${CMAKE_CURRENT_BINARY_DIR}/icon-${size}.png)
  add_custom_command(OUTPUT ${icon}
    COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${icon} ${drawing}
    DEPENDS ${drawing} VERBATIM)
  list(APPEND icons ${icon})
  install(FILES ${icon}
    DESTINATION ${iconFolder}/${size}x${size}/apps RENAME ${appId}.png COMPONENT app)
endforeach()
add_custom_target(leafund_icons ALL DEPENDS ${icons})
