// GNUstep's headers ask for this name; the blocks runtime calls it Block.h.
#include <Block.h>
