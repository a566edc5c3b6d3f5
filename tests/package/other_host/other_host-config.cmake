# A package as somebody else's host brings it. Its libraries are those of the client, found in other_host_LIBRARY_DIR,
# without anything of the package that they came with. It is written against the contract, which it looks for.
find_package(kelvra_login QUIET COMPONENTS contract)
add_library(other_host::libraries INTERFACE IMPORTED)
foreach(library IN ITEMS ZCommon kelvra_base kelvra_worker kelvra_data kelvra_saas kelvra_contact)
    add_library(other_host::${library} SHARED IMPORTED)
    set_target_properties(
        other_host::${library} PROPERTIES IMPORTED_LOCATION ${other_host_LIBRARY_DIR}/lib${library}.so
    )
    target_link_libraries(other_host::libraries INTERFACE other_host::${library})
endforeach()
