#pragma once

#include "common/ports/AutomationObject.h"

#include <functional>
#include <comdef.h>
#include <wrl/client.h>

using DispatchPtr = Microsoft::WRL::ComPtr<IDispatch>;

// How objects cross the edge; neither is asked for "Nothing".  A client makes objects that call the
// interface, a server makes interfaces that call the object.
using ObjectFromDispatch = std::function<AutomationObjectPtr(const DispatchPtr&)>;
using DispatchFromObject = std::function<DispatchPtr(const AutomationObjectPtr&)>;

// The value of a variant of any automation kind, by value or by reference.  Empty, null and error
// variants give the empty value; whole numbers that do not fit in 32 bits give a double; an array
// of numbers gives doubles, any other array gives an array of values.  Throws RuntimeError
// TypeMismatch for arrays of more than one dimension, records and interfaces without automation.
[[nodiscard]] AutomationValue FromVariant(const VARIANT& variant, const ObjectFromDispatch& wrap);

// Fills an empty variant: VT_EMPTY, VT_BOOL, VT_I4, VT_R8, VT_BSTR, VT_DISPATCH, VT_ARRAY|VT_R8 or
// VT_ARRAY|VT_VARIANT; arrays have one dimension with the lower bound 0.  When it throws (what
// unwrap throws, std::bad_alloc), what the variant holds so far is its owner's to clear.
void ToVariant(const AutomationValue& value, const DispatchFromObject& unwrap, VARIANT& variant);
