#pragma once

#include <windows.h>

// These two want the first one before them.
#include <shellapi.h>
#include <shlobj.h>
