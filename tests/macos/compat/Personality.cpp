// clang gives every Objective-C++ function the personality of the GNU run-time, under which C++ exceptions are never
// caught. This one takes its place in the objects of this executable; GNUstep's libraries keep theirs.

#include <unwind.h>

extern "C" _Unwind_Reason_Code __gxx_personality_v0(int version, _Unwind_Action actions,
                                                    _Unwind_Exception_Class exceptionClass,
                                                    _Unwind_Exception* exception, _Unwind_Context* context);

extern "C" __attribute__((visibility("hidden"))) _Unwind_Reason_Code
__gnu_objc_personality_v0(int version, _Unwind_Action actions, _Unwind_Exception_Class exceptionClass,
                          _Unwind_Exception* exception, _Unwind_Context* context)
{
    return __gxx_personality_v0(version, actions, exceptionClass, exception, context);
}
