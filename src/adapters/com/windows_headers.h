// The system's headers of COM and automation, without the macros that take names of ours.
#pragma once

#include <windows.h>

#include <oaidl.h>
#include <objbase.h>
#include <oleauto.h>

#undef GetObject
