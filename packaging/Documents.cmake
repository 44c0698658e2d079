# What is read beside the app: manual pages, changelogs, and what catalogues of software know of it.
# Each sentence stands once, here or in CHANGELOG.md.
set(appSummary "small pledges, green changes")
set(appDescription
"Leafund is a phone app for crowdfunding personal environmental pledges: browse
what people promise, put money behind it, and start a campaign of your own.")
set(demoSummary "demonstration of Leafund with its pictures")
set(demoDescription
"The pictures of the demonstration campaigns, and a launcher that serves them to
the app on the loopback address for as long as it is open.")
set(webSummary "Leafund as a page for any browser")
set(webDescription
"The files of the page, for a web server to serve.")

# A version that is still in the making is dated by today, or by SOURCE_DATE_EPOCH.
string(TIMESTAMP today "%Y-%m-%d" UTC)
foreach(release IN LISTS releases)
  string(REGEX MATCH "^## ([0-9.]+) \\((.*)\\)$" release "${release}")
  set(line "<release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\"/>")
  if(NOT CMAKE_MATCH_2 MATCHES "^[0-9]+-[0-9]+-[0-9]+$")
    set(line "<release version=\"${CMAKE_MATCH_1}\" date=\"${today}\" type=\"development\"/>")
  endif()
  list(APPEND releaseLines "    ${line}")
endforeach()
list(JOIN releaseLines "\n" releaseLines)
if(LEAFUND_QT)
  set(metainfo ${CMAKE_CURRENT_BINARY_DIR}/${appId}.metainfo.xml)
  configure_file(${appId}.metainfo.xml.in ${metainfo} @ONLY)
  if(NOT LEAFUND_SCREENSHOTS)
    file(READ ${metainfo} text)
    string(REGEX REPLACE "  <!-- Made by tools/tour.*</screenshots>\n\n" "" text "${text}")
    file(WRITE ${metainfo} "${text}")
  endif()
  install(FILES ${metainfo}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT app)
endif()

# Installs a file packed as the packages' rules ask for it: as small as it goes, and without a time.
function(install_packed file name folder component)
  set(packed ${CMAKE_CURRENT_BINARY_DIR}/${component}/${name}.gz)
  file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/${component})
  execute_process(COMMAND gzip -9n INPUT_FILE ${file} OUTPUT_FILE ${packed} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${packed} DESTINATION ${folder} COMPONENT ${component})
endfunction()

# The changelog and the copyright of a package.
function(record package component)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS debian-changelog)
  set(changelog ${CMAKE_CURRENT_BINARY_DIR}/${package}.changelog)
  execute_process(
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/debian-changelog
      ${package} ${LEAFUND_REVISION} ${LEAFUND_CONTACT} ${today}
    INPUT_FILE ${PROJECT_SOURCE_DIR}/CHANGELOG.md OUTPUT_FILE ${changelog} COMMAND_ERROR_IS_FATAL ANY)
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${package})
  install_packed(${changelog} changelog.Debian ${documents} ${component})
  install(FILES copyright DESTINATION ${documents} COMPONENT ${component})
endfunction()

# Those, and the manual page, of a command that is a package of that name.
function(document command component)
  configure_file(man/${command}.1.in ${command}.1 @ONLY)
  install_packed(${CMAKE_CURRENT_BINARY_DIR}/${command}.1 ${command}.1 ${CMAKE_INSTALL_MANDIR}/man1
    ${component})
  record(${command} ${component})
endfunction()
