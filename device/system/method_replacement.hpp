#pragma once

#import <objc/objc.h>

namespace device {

/// The runtime's own class_addMethod, in front of which the device's stands.
bool addMethod(Class targetClass, SEL selector, IMP implementation, const char* types);

/// Gives the class itself, and every subclass that inherits from it, another implementation of a method; one
/// that it only inherits is added to it. Answers what instances of the class ran before; NULL, with nothing
/// done, when the class is nil or has no such method. A class method is one of the metaclass.
IMP replaceMethod(Class targetClass, SEL selector, IMP replacement);

}  // namespace device
