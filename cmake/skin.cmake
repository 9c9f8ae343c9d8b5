# The button skins: drawn by the project's own tool while it is built, carried by the windows as a resource.
set(SKIN_FOLDER ${PROJECT_BINARY_DIR}/generated/skin)
set(SKIN_FILES "")
foreach(scale 1 2 3 4)
    list(APPEND SKIN_FILES ${SKIN_FOLDER}/buttons_${scale}x.png)
endforeach()
file(MAKE_DIRECTORY ${SKIN_FOLDER})
add_custom_command(OUTPUT ${SKIN_FILES} COMMAND quorrin-draw-skin ${SKIN_FOLDER} DEPENDS quorrin-draw-skin
    COMMENT "Drawing the button skins" VERBATIM)
qt_add_resources(quorrin_desktop quorrin_skin_images PREFIX /skin BASE ${SKIN_FOLDER} FILES ${SKIN_FILES})
