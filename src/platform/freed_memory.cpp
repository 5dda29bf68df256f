#include "platform/freed_memory.h"

#include <cstdlib> // Tells which library it is.

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace ruvenmark {

void ReturnFreedMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace ruvenmark
