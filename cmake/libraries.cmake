# One library for each floor of the building; src/ has one folder for each room.

# quorrin_library(NAME FOLDERS folder... LINK library...): all sources right inside the folders.
function(quorrin_library name)
    cmake_parse_arguments(ARG "" "" "FOLDERS;LINK" ${ARGN})
    set(sources "")
    foreach(folder ${ARG_FOLDERS})
        file(GLOB found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/src/${folder}/*.h)
        list(APPEND sources ${found})
    endforeach()
    set(compiled ${sources})
    list(FILTER compiled INCLUDE REGEX "\\.cpp$")
    if(compiled)
        add_library(${name} STATIC ${sources})
        target_link_libraries(${name} PUBLIC quorrin_options ${ARG_LINK})
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE quorrin_options ${ARG_LINK})
    endif()
endfunction()

quorrin_library(quorrin_base FOLDERS platform base)

# The robot protocol. Generated code is not held to our warnings.
protobuf_generate_cpp(WIRE_SOURCES WIRE_HEADERS ${PROJECT_SOURCE_DIR}/src/wire/robot.proto)
add_library(quorrin_proto STATIC ${WIRE_SOURCES} ${WIRE_HEADERS})
target_include_directories(quorrin_proto SYSTEM PUBLIC ${CMAKE_CURRENT_BINARY_DIR})
target_link_libraries(quorrin_proto PUBLIC protobuf::libprotobuf-lite)
quorrin_library(quorrin_wire FOLDERS wire LINK quorrin_base quorrin_proto)

# The station: plain C++, no Qt, no clock, no socket.
quorrin_library(quorrin_station
    FOLDERS session/record navigation/math robotlink navigation sound imaging remote console session
    LINK quorrin_wire quorrin_base)
# The camera's pictures.
find_path(TURBOJPEG_INCLUDE_DIR turbojpeg.h REQUIRED)
find_library(TURBOJPEG_LIBRARY turbojpeg REQUIRED)
target_include_directories(quorrin_station SYSTEM PRIVATE ${TURBOJPEG_INCLUDE_DIR})
target_link_libraries(quorrin_station PUBLIC ${TURBOJPEG_LIBRARY})

quorrin_library(quorrin_host FOLDERS platform/host LINK quorrin_base)
quorrin_library(quorrin_virtual FOLDERS platform/virtual LINK quorrin_base)
quorrin_library(quorrin_qt FOLDERS platform/qt LINK quorrin_host quorrin_base Qt6::Core Qt6::Network)
# "signals", "slots" and "emit" stay ordinary words.
target_compile_definitions(quorrin_qt PUBLIC QT_NO_KEYWORDS)
# Joysticks. The programs of this library that meet none do not load it.
target_link_libraries(quorrin_qt PRIVATE SDL2::SDL2)
target_link_options(quorrin_qt INTERFACE LINKER:--as-needed)

quorrin_library(quorrin_gateway FOLDERS gateway LINK quorrin_wire)
quorrin_library(quorrin_robot FOLDERS robot robot/eyes LINK quorrin_station quorrin_wire box2d::box2d nlohmann_json::nlohmann_json)
# The simulated robot's window; the robot itself wants nothing of Qt.
quorrin_library(quorrin_robot_window FOLDERS robot/window LINK quorrin_robot Qt6::Widgets)
quorrin_library(quorrin_replay FOLDERS replay LINK quorrin_station quorrin_robot quorrin_virtual quorrin_host nlohmann_json::nlohmann_json)
quorrin_library(quorrin_client FOLDERS client LINK quorrin_base)
# The drawing of the button skins; the tool that draws them is built before the windows that carry them.
quorrin_library(quorrin_skin FOLDERS desktop/skin LINK Qt6::Gui)
target_compile_definitions(quorrin_skin PUBLIC QT_NO_KEYWORDS)
# The look that the windows of several programs share.
quorrin_library(quorrin_look FOLDERS desktop/theme desktop/tiles LINK quorrin_base Qt6::Widgets)
target_compile_definitions(quorrin_look PUBLIC QT_NO_KEYWORDS)
# The remote client's window; the client itself wants nothing of Qt.
quorrin_library(quorrin_client_window FOLDERS client/window LINK quorrin_client quorrin_look Qt6::Widgets)
# The windows: widgets bound to the forms, nothing decided in them.
quorrin_library(quorrin_desktop FOLDERS desktop desktop/binding desktop/forms desktop/views desktop/widgets
    LINK quorrin_look quorrin_skin quorrin_station quorrin_base Qt6::Widgets)
