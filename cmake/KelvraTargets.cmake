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
    # Qt's QSKIP leaves the variable arguments of a macro empty, which C++20 allows.
    target_compile_options(
        kelvra_options INTERFACE $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
    )
endif()
if(KELVRA_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(kelvra_options INTERFACE ${sanitizers})
    target_link_options(kelvra_options INTERFACE ${sanitizers})
endif()
if(WIN32)
    # A host looks for the libraries under the contract's names, whoever compiled them.
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()
if(NOT WIN32 AND NOT KELVRA_SANITIZE)
    # A library that forgets one of its own dependencies fails here rather than when it is loaded.
    target_link_options(kelvra_options INTERFACE $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:-Wl,-z,defs>)
endif()

# kelvra_objects(<name> DEFINE <macro> LIBRARY <target> SOURCES ... [LINK ...])
# What the library is made from, as an object library that a test can take instead of it. On Windows these are compiled
# twice, as what is exported, or comes out of another DLL, is called in another way than what the program brings itself.
function(kelvra_objects name)
    cmake_parse_arguments(ARG "" "DEFINE;LIBRARY" "SOURCES;LINK" ${ARGN})
    set(exported ${name})
    if(WIN32)
        set(exported ${name}_exported)
        add_library(${name} OBJECT EXCLUDE_FROM_ALL ${ARG_SOURCES})
        target_compile_definitions(${name} PUBLIC KELVRA_HOST_STATIC KELVRA_LOGIN_STATIC)
        target_link_libraries(${name} PUBLIC kelvra_host ${ARG_LINK} PRIVATE kelvra_options)
    endif()
    add_library(${exported} OBJECT ${ARG_SOURCES})
    target_compile_definitions(${exported} PRIVATE ${ARG_DEFINE})
    target_link_libraries(${exported} PUBLIC kelvra_host ${ARG_LINK} PRIVATE kelvra_options)
    target_link_libraries(${ARG_LIBRARY} PRIVATE ${exported})
endfunction()

# kelvra_client_library(<name> DEFINE <macro> SOURCES ... [DIALOGS ...] [LINK ...] [NEEDS ...] [HEADERS ...])
# One of the client's libraries, under the contract's name. Its widgets and services are an object library,
# <name>_objects, that links nothing of the client, so that tests can put it beside substitutes of their own.
# LINK names libraries from outside the tree, NEEDS other libraries of the client; HEADERS are those that a shell
# includes besides the contract's.
function(kelvra_client_library name)
    cmake_parse_arguments(ARG "" "DEFINE" "SOURCES;DIALOGS;LINK;NEEDS;HEADERS" ${ARGN})
    add_library(${name} SHARED)
    foreach(part IN ITEMS SOURCES DIALOGS)
        if(NOT ARG_${part})
            continue()
        endif()
        # DIALOGS hold what would block a test: it leaves them out and links its own.
        string(REPLACE "SOURCES" "objects" suffix ${part})
        string(REPLACE "DIALOGS" "dialogs" suffix ${suffix})
        kelvra_objects(
            ${name}_${suffix} DEFINE ${ARG_DEFINE} LIBRARY ${name} SOURCES ${ARG_${part}} LINK ${ARG_LINK}
        )
    endforeach()
    # Of what is linked from elsewhere only Qt shows in headers.
    set(shown ${ARG_LINK})
    list(FILTER shown INCLUDE REGEX ^Qt5::)
    target_link_libraries(${name} PRIVATE kelvra_options PUBLIC kelvra_host ${shown} ${ARG_NEEDS})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    list(TRANSFORM ARG_HEADERS PREPEND client/${name}/)
    kelvra_install_library(${name} client ${ARG_HEADERS})
endfunction()

# kelvra_translations(<name> <files> <compiled>): the translation files of "kelvra_client" or "kelvra_login", from the
# root of the tree, and what they are compiled to, beside the target that is made of them in this folder.
function(kelvra_translations name files compiled)
    # Codes of the languages beside English, as in client/kelvra_worker/Languages.cpp.
    set(sources zh_CN de es fr ru ja)
    list(TRANSFORM sources REPLACE ".+" "client/translations/${name}_\\0.ts")
    set(${files} ${sources} PARENT_SCOPE)
    list(TRANSFORM sources PREPEND ${PROJECT_SOURCE_DIR}/)
    qt5_add_translation(outputs ${sources})
    set(${compiled} ${outputs} PARENT_SCOPE)
endfunction()
