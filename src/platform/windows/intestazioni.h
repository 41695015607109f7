#pragma once

#include <windows.h>

// These want the first one before them.
#include <objbase.h>
#include <oleauto.h>
#include <shellapi.h>
#include <shlobj.h>
