# What every target of the tree is compiled with.
add_library(kelvra_options INTERFACE)
target_compile_definitions(kelvra_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
                                                    QT_DEPRECATED_WARNINGS QT_MESSAGELOGCONTEXT)
if(MSVC)
    # 4251: private members of exported classes are nobody's interface.
    target_compile_options(kelvra_options INTERFACE /W4 /wd4251 /utf-8 $<$<BOOL:${KELVRA_WERROR}>:/WX>)
else()
    target_compile_options(kelvra_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow
                                                    $<$<BOOL:${KELVRA_WERROR}>:-Werror>)
endif()
if(KELVRA_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(kelvra_options INTERFACE ${sanitizers})
    target_link_options(kelvra_options INTERFACE ${sanitizers})
endif()
if(NOT WIN32 AND NOT KELVRA_SANITIZE)
    # A library that forgets one of its own dependencies fails here rather than when it is loaded.
    target_link_options(kelvra_options INTERFACE $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:-Wl,-z,defs>)
endif()

# kelvra_client_library(<name> DEFINE <macro> SOURCES ... [DIALOGS ...] [LINK ...] [NEEDS ...])
# One of the client's libraries, under the contract's name. Its widgets and services are an object library,
# <name>_objects, that links nothing of the client, so that tests can put it beside substitutes of their own.
# LINK names libraries from outside the tree, NEEDS other libraries of the client.
function(kelvra_client_library name)
    cmake_parse_arguments(ARG "" "DEFINE" "SOURCES;DIALOGS;LINK;NEEDS" ${ARGN})
    add_library(${name} SHARED)
    foreach(part IN ITEMS SOURCES DIALOGS)
        if(NOT ARG_${part})
            continue()
        endif()
        # DIALOGS hold what would block a test: it leaves them out and links its own.
        string(REPLACE "SOURCES" "objects" suffix ${part})
        string(REPLACE "DIALOGS" "dialogs" suffix ${suffix})
        set(objects ${name}_${suffix})
        add_library(${objects} OBJECT ${ARG_${part}})
        target_compile_definitions(${objects} PRIVATE ${ARG_DEFINE})
        target_link_libraries(${objects} PUBLIC kelvra_host ${ARG_LINK} PRIVATE kelvra_options)
        target_link_libraries(${name} PRIVATE ${objects})
    endforeach()
    target_link_libraries(${name} PRIVATE kelvra_options PUBLIC kelvra_host ${ARG_LINK} ${ARG_NEEDS})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()
