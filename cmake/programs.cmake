# What ./run needs; the target "programs" builds them without the tests.
add_custom_target(programs)

# quorrin_program(NAME MAIN library...): one short main under src/apps.
function(quorrin_program name main)
    if(EXISTS ${PROJECT_SOURCE_DIR}/src/apps/${main})
        add_executable(${name} ${PROJECT_SOURCE_DIR}/src/apps/${main})
        target_link_libraries(${name} PRIVATE quorrin_options ${ARGN})
        add_dependencies(programs ${name})
        install(TARGETS ${name} RUNTIME DESTINATION bin)
    endif()
endfunction()

quorrin_program(quorrin-replay quorrin_replay.cpp quorrin_replay)
quorrin_program(QuorrinGatewaymot gateway_mot.cpp quorrin_gateway quorrin_qt)
quorrin_program(QuorrinGatewayTI gateway_ti.cpp quorrin_gateway quorrin_qt)
quorrin_program(quorrin-robot quorrin_robot.cpp quorrin_robot_window quorrin_robot quorrin_qt)
quorrin_program(quorrin-remote quorrin_remote.cpp quorrin_client_window quorrin_client quorrin_qt)
quorrin_program(quorrin-draw-plan quorrin_draw_plan.cpp quorrin_robot quorrin_host)
quorrin_program(quorrin-draw-skin quorrin_draw_skin.cpp quorrin_skin)
quorrin_program(quorrin-station-headless quorrin_station_headless.cpp quorrin_station quorrin_qt)
quorrin_program(quorrin-station quorrin_station.cpp quorrin_desktop quorrin_station quorrin_qt)
