# What an iPhone gets: how the library is linked, and the Debian package that it comes in.

set(LOADER_FOLDER Library/MobileSubstrate/DynamicLibraries)
set(IMAGE_FOLDER "Library/Application Support/velvault12")

# The stubs name what the library takes from the phone: a symbol that they lack does not link, so that a new dependency is a
# decision. An SDK that brings stubs of its own is linked with those.
set(STUBS ${CMAKE_CURRENT_LIST_DIR}/stubs)
function(find_stub name)
  set(STUB ${STUBS}/${name}.tbd)
  foreach(candidate usr/lib/${name}.tbd System/Library/Frameworks/${name}.framework/${name}.tbd)
    if(EXISTS ${CMAKE_OSX_SYSROOT}/${candidate})
      set(STUB ${CMAKE_OSX_SYSROOT}/${candidate})
    endif()
  endforeach()
  set_property(TARGET velvault12 APPEND PROPERTY LINK_DEPENDS ${STUB})
  set(STUB ${STUB} PARENT_SCOPE)
endfunction()
foreach(name libobjc libSystem libc++ CoreFoundation Foundation CydiaSubstrate librocketbootstrap)
  find_stub(${name})
  target_link_options(velvault12 PRIVATE ${STUB})
endforeach()
# Loaded for their classes, which are asked for by name. Weak: a process whose system lacks them loads the library all the
# same.
foreach(name LocalAuthentication AppSupport)
  find_stub(${name})
  target_link_options(velvault12 PRIVATE LINKER:-weak_library,${STUB})
endforeach()

# Nobody calls it by name, so nothing is exported.
target_link_options(velvault12 PRIVATE -nostdlib LINKER:-dead_strip LINKER:-unexported_symbol,* LINKER:-adhoc_codesign)
set_target_properties(velvault12 PROPERTIES INSTALL_NAME_DIR /${LOADER_FOLDER} BUILD_WITH_INSTALL_NAME_DIR ON
  MACHO_CURRENT_VERSION ${PROJECT_VERSION} MACHO_COMPATIBILITY_VERSION ${PROJECT_VERSION})
# Stripping signs anew. What crash reports are read with stays in the build folder.
add_custom_command(TARGET velvault12 POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:velvault12> velvault12.symbols.dylib
  COMMAND ${CMAKE_STRIP} -x $<TARGET_FILE:velvault12> VERBATIM)

# The package. Modes are not the builder's umask's; owners become root's.
find_program(DPKG_DEB dpkg-deb)
if(NOT DPKG_DEB)
  message(STATUS "Left out: the package (dpkg-deb not found).")
  return()
endif()
set(CMAKE_INSTALL_MESSAGE NEVER)
set(FILTER ${CMAKE_CURRENT_LIST_DIR}/velvault12.plist)
file(GLOB IMAGES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/*.png)
configure_file(${CMAKE_CURRENT_LIST_DIR}/control.in ${PROJECT_BINARY_DIR}/control @ONLY)
install(TARGETS velvault12 LIBRARY DESTINATION ${LOADER_FOLDER})
install(FILES ${FILTER} DESTINATION ${LOADER_FOLDER})
install(FILES ${IMAGES} DESTINATION ${IMAGE_FOLDER})
install(FILES ${PROJECT_BINARY_DIR}/control DESTINATION DEBIAN)

# The same commit packs to the same bytes: what is newer than it bears its time.
execute_process(COMMAND git log -1 --format=%ct WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE COMMIT_TIME
  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
if(COMMIT_TIME)
  set(AT_COMMIT_TIME ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=${COMMIT_TIME})
endif()
set(PACKAGE ${PROJECT_SOURCE_DIR}/build/velvault12_${PROJECT_VERSION}_iphoneos-arm.deb)
set(STAGE ${PROJECT_BINARY_DIR}/stage)
add_custom_command(OUTPUT ${PACKAGE}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${STAGE}
  COMMAND ${CMAKE_COMMAND} -E env --unset=DESTDIR ${CMAKE_COMMAND} --install ${PROJECT_BINARY_DIR} --prefix ${STAGE}
  COMMAND chmod -R u=rwX,go=rX ${STAGE}
  COMMAND find ${STAGE} -type f -exec touch {} +
  # The oldest compression: a phone's dpkg may be as old.
  COMMAND ${AT_COMMIT_TIME} ${DPKG_DEB} --root-owner-group -Zgzip --build ${STAGE} ${PACKAGE}
  DEPENDS velvault12 ${FILTER} ${IMAGES} ${PROJECT_BINARY_DIR}/control
  COMMENT "Packing ${PACKAGE}" VERBATIM)
add_custom_target(package_for_phone ALL DEPENDS ${PACKAGE})
