// Load and unload hooks of the module. The library builds no state at load
// and tears none down at unload: both return at once.
extern "C" {
__attribute__((visibility("hidden"))) void initializer(void) {}
__attribute__((visibility("hidden"))) void destructor(void) {}
}
