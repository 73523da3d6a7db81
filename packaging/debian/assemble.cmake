# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Run by CPack in the folder that becomes the package: puts what is installed where Debian
# wants it, and adds what only a package has. (COPY, since INSTALL would add DESTDIR.)
set(usr ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
# The program finds the rest beside its own folder, whatever that is called.
file(MAKE_DIRECTORY ${usr}/games)
file(RENAME ${usr}/bin/paircade ${usr}/games/paircade)
file(REMOVE_RECURSE ${usr}/bin)

set(documents ${usr}/share/doc/paircade)
file(COPY ${CPACK_PAIRCADE_DOCUMENTS}/copyright ${CPACK_PAIRCADE_DOCUMENTS}/changelog DESTINATION ${documents})
file(COPY ${CMAKE_CURRENT_LIST_DIR}/lintian-overrides DESTINATION ${usr}/share/lintian/overrides)
file(RENAME ${usr}/share/lintian/overrides/lintian-overrides ${usr}/share/lintian/overrides/paircade)
# Without names and times.
execute_process(COMMAND gzip -9nf ${documents}/changelog ${usr}/share/man/man6/paircade.6
    COMMAND_ERROR_IS_FATAL ANY)
