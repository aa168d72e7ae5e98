// The identifiers of the library, its interfaces and its classes: with INITGUID the header defines
// what it declares otherwise.

#include <initguid.h>

#include "com/ComPrefix.h"
