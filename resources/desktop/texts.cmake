# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Run by the build: writes the desktop entry ENTRY and the software centre's page METAINFO
# in all languages of the catalogues. ADDRESS is that of the project.
cmake_minimum_required(VERSION 3.25)
set(PAIRCADE_ADDRESS ${ADDRESS})
file(GLOB catalogues ${CMAKE_CURRENT_LIST_DIR}/../translations/*.ts)
list(SORT catalogues)
# English, which has no mark, comes first.
set(english ${catalogues})
list(FILTER english INCLUDE REGEX "_en\\.ts$")
list(REMOVE_ITEM catalogues ${english})
list(PREPEND catalogues ${english})

# text(ID): sets `text` to what the catalogue in `source` has for it; XML's escapes stay.
macro(text id)
    if(NOT source MATCHES "<message id=\"${id}\">[^\n]*\n[^\n]*<translation>([^<]+)</translation>")
        message(FATAL_ERROR "${catalogue} lacks ${id}")
    endif()
    set(text "${CMAKE_MATCH_1}")
endmacro()

foreach(catalogue IN LISTS catalogues)
    file(READ "${catalogue}" source)
    string(REGEX REPLACE "^.*/paircade_([A-Za-z_]+)\\.ts$" "\\1" language "${catalogue}")
    # Desktops choose by language and country, not by script, which only the head knows.
    if(language MATCHES "_" AND source MATCHES "<TS version=\"2.1\" language=\"([A-Za-z_]+)\">")
        set(language ${CMAKE_MATCH_1})
    endif()
    set(mark "[${language}]")
    set(xml_mark " xml:lang=\"${language}\"")
    if(language STREQUAL "en")
        set(mark "")
        set(xml_mark "")
    endif()
    text(desktop_generic_name)
    string(APPEND generic_names "GenericName${mark}=${text}\n")
    text(desktop_keywords)
    string(APPEND keywords "\nKeywords${mark}=${text}")
    text(desktop_comment)
    string(APPEND comments "Comment${mark}=${text}\n")
    string(APPEND summary "  <summary${xml_mark}>${text}</summary>\n")
    text(store_description_play)
    string(APPEND play "    <p${xml_mark}>${text}</p>\n")
    text(store_description_more)
    string(APPEND more "    <p${xml_mark}>${text}</p>\n")
endforeach()
string(STRIP "${keywords}" keywords)
set(entry_texts "${generic_names}${comments}${keywords}")
string(REGEX REPLACE "\n$" "" summary "${summary}")
string(REGEX REPLACE "\n$" "" description "${play}${more}")

configure_file(${CMAKE_CURRENT_LIST_DIR}/org.paircade.Paircade.desktop.in "${ENTRY}" @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/org.paircade.Paircade.metainfo.xml.in "${METAINFO}" @ONLY)
# Whatever does not change keeps its time, and would count as out of date for ever.
file(TOUCH "${ENTRY}" "${METAINFO}")
