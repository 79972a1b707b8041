# Where the program stands on a desktop: itself, its data, and what makes the desktop know of it.
include(GNUInstallDirs)

install(TARGETS velmora-import RUNTIME)
install(FILES packaging/man/velmora-import.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
if(NOT TARGET velmora)
  return()
endif()

install(TARGETS velmora RUNTIME)
install(FILES packaging/man/velmora.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")

# The program looks beside its folder, in ../share/velmora.
set(data_dir "${CMAKE_INSTALL_DATADIR}/velmora")
install(FILES "${CMAKE_BINARY_DIR}/data/VELMORA.MDB" DESTINATION "${data_dir}")
install(DIRECTORY data/sounds/ DESTINATION "${data_dir}" FILES_MATCHING PATTERN "*.wav")
install(FILES data/deployment.txt data/acad.dwt DESTINATION "${data_dir}")
install(DIRECTORY data/machines DESTINATION "${data_dir}" FILES_MATCHING PATTERN "*.machine")
install(DIRECTORY "${VELMORA_BIN_DIR}/help" DESTINATION "${data_dir}")
install(FILES "${VELMORA_BIN_DIR}/velmora.chm" DESTINATION "${data_dir}" OPTIONAL)
foreach(language IN LISTS VELMORA_GUIDE_LANGUAGES)
  install(FILES "${VELMORA_BIN_DIR}/velmora_${language}.chm" DESTINATION "${data_dir}" OPTIONAL)
endforeach()

install(FILES packaging/desktop/org.velmora.Velmora.desktop
  DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES packaging/desktop/velmora.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
# A catalogue of programs fetches its pictures, so they are named where they are published.
set(VELMORA_PICTURES_URL "" CACHE STRING "Where the folder docs is published, for the pictures of catalogues")
set(VELMORA_SCREENSHOTS "")
if(VELMORA_PICTURES_URL)
  set(VELMORA_SCREENSHOTS "  <screenshots>
    <screenshot type=\"default\">
      <caption>A wing section with its points</caption>
      <image>${VELMORA_PICTURES_URL}/pictures/main-window.png</image>
    </screenshot>
    <screenshot>
      <caption>The two sides of a tapered cut</caption>
      <image>${VELMORA_PICTURES_URL}/walkthrough/13-adjusted.png</image>
    </screenshot>
  </screenshots>")
endif()
configure_file(packaging/desktop/org.velmora.Velmora.metainfo.xml.in
  org.velmora.Velmora.metainfo.xml @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/org.velmora.Velmora.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
foreach(size IN ITEMS 16 24 32 48 64 128 256)
  install(FILES "${CMAKE_BINARY_DIR}/icons/light/velmora-${size}.png"
    DESTINATION "${icons}/${size}x${size}/apps" RENAME velmora.png)
endforeach()
install(FILES data/icons/velmora.svg DESTINATION "${icons}/scalable/apps")

# The add-on that makes FreeCAD a CAD to capture from, where FreeCAD looks for those of all users.
set(addon "${CMAKE_INSTALL_DATADIR}/freecad/Mod/Velmora")
install(DIRECTORY integrations/freecad/ DESTINATION "${addon}"
  PATTERN "__pycache__" EXCLUDE PATTERN "*.pyc" EXCLUDE)
install(FILES LICENSE data/icons/velmora.svg DESTINATION "${addon}")
install(FILES data/dbus/org.velmora.Cad1.xml DESTINATION "${addon}/velmora_cad")
