# What an installation has, and where. A program finds the shared files at ../share/quorrin of its own folder; the
# link gives a build folder the same shape.
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/share)
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/share ${PROJECT_BINARY_DIR}/share/quorrin SYMBOLIC)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/share/ DESTINATION share/quorrin)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION share/doc/quorrin/docs)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/ DESTINATION share/doc/quorrin/examples)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION share/doc/quorrin)
