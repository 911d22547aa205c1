// SPDX-License-Identifier: MIT
#include "support/Machine/BuiltPaths.h"

namespace tessera::test::built {

const char* program()
{
    return TESSERA_PROGRAM;
}

const char* archiver()
{
    return TESSERA_ARCHIVER;
}

const char* previewer()
{
    return TESSERA_PREVIEWER;
}

const char* settingsWriter()
{
    return TESSERA_SETTINGS_WRITER;
}

const char* trashMover()
{
    return TESSERA_TRASH_MOVER;
}

const char* basketMover()
{
    return TESSERA_BASKET_MOVER;
}

const char* folder()
{
    return TESSERA_BUILD;
}

const char* cmake()
{
    return TESSERA_CMAKE;
}

const char* screenshots()
{
    return TESSERA_BUILD "/screenshots";
}

const char* archiveReader()
{
    return TESSERA_TESTS "/HelperPrograms/Archiver/readArchive.py";
}

const char* xbelReader()
{
    return TESSERA_TESTS "/Platform/Linux/Desktop/readXbel.py";
}

const char* sftpRelay()
{
    return TESSERA_TESTS "/Platform/Linux/Trash/sftpRelay.py";
}

} // namespace tessera::test::built
