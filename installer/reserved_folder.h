#pragma once

#include <string>

#include <windows.h>

/// Makes a folder one that only administrators own and can write; users may read and run what it contains.
/// What is missing on the way to it is created in the same way. What an existing folder contains inherits its
/// rights; nothing is changed where administrators own it and nobody else can write it. Links in the folder
/// are neither changed nor followed.
///
/// Returns ERROR_SUCCESS or the system's error; ERROR_INVALID_PARAMETER for a whole drive or share;
/// ERROR_ACCESS_DENIED, with nothing changed, if there is a link on the way that administrators do not own:
/// its owner could let it lead elsewhere.
DWORD reserveFolder(const std::wstring &folder);
