#pragma once

#import <objc/objc.h>

extern "C" {
/// Replaces the method in the class alone, its subclasses inheriting it; one that the class only inherits is
/// added to it. Writes the replaced implementation. A nil class or an unknown selector is told on the log,
/// with nothing done and nothing written.
void MSHookMessageEx(Class targetClass, SEL selector, IMP replacement, IMP* replaced);
}
