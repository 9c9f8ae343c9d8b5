# What every target of the project is compiled with.
add_library(quorrin_options INTERFACE)
target_include_directories(quorrin_options INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/generated)
target_compile_options(quorrin_options INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Werror
    # The same sums on every machine: no fused multiply-add behind the programmer's back.
    -ffp-contract=off)
target_compile_definitions(quorrin_options INTERFACE QUORRIN_VERSION="${PROJECT_VERSION}")
if(QUORRIN_SANITIZE OR QUORRIN_FUZZ)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    # With the sanitizers' code in between, g++ takes the standard library's own objects for uninitialised.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
if(QUORRIN_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
