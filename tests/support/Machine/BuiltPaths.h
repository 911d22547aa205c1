// SPDX-License-Identifier: MIT
#pragma once

/// Where the build put what tests start, and where scripts lie that tests ask. All of it is bytes
/// of absolute paths.
///
/// One source alone holds them: they are others in each clone, and the compiler cache would serve
/// no source that is compiled with one of them.
namespace tessera::test::built {

/// The programs that users get: `tessera`, `tessera-ditto` and `tessera-preview`.
[[nodiscard]] const char* program();
[[nodiscard]] const char* archiver();
[[nodiscard]] const char* previewer();

/// A program that writes settings until it is killed.
[[nodiscard]] const char* settingsWriter();

/// Programs that move items to the trash and back until they are killed: one after the other, and
/// as steps of several.
[[nodiscard]] const char* trashMover();
[[nodiscard]] const char* basketMover();

/// The build's own folder, the CMake that made it, and where pictures of the screens go.
[[nodiscard]] const char* folder();
[[nodiscard]] const char* cmake();
[[nodiscard]] const char* screenshots();

/// Python scripts of the tests: readers of an archive and of the desktop's recent documents, and a
/// relay between a network disk and its server.
[[nodiscard]] const char* archiveReader();
[[nodiscard]] const char* xbelReader();
[[nodiscard]] const char* sftpRelay();

} // namespace tessera::test::built
