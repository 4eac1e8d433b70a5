#pragma once

namespace device {

/// Loads every library in /Library/MobileSubstrate/DynamicLibraries whose filter names this process: its
/// bundle, a framework that it links, or a class that it has. One that cannot be loaded is told on the log.
void loadInjectedLibraries();

/// Whether this thread is loading one at this moment.
bool isLoadingLibrary();

}  // namespace device
