#include "platform/VariantConversion.h"

#include "common/RuntimeError.h"
#include "platform/SafeArrayAccess.h"
#include "platform/SystemMessage.h"
#include "platform/Utf16.h"

#include <concepts>
#include <new>
#include <utility>

namespace {

[[noreturn]] void ThrowTypeMismatch() {
    throw RuntimeError(ErrorNumber::TypeMismatch, ErrorTexts::WrongKindOfValue);
}

void Check(HRESULT result) {
    if (FAILED(result))
        throw SystemError(result);
}

AutomationValue Whole(std::integral auto number) {
    if (std::in_range<std::int32_t>(number))
        return static_cast<std::int32_t>(number);
    return static_cast<double>(number);
}

double Currency(const CY& amount) {
    double number = 0;
    Check(VarR8FromCy(amount, &number));
    return number;
}

double Decimal(DECIMAL decimal) {
    double number = 0;
    Check(VarR8FromDec(&decimal, &number));
    return number;
}

bool IsNumberType(VARTYPE type) {
    switch (type) {
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_INT:
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_R4:
    case VT_R8:
    case VT_DATE:
    case VT_CY:
    case VT_DECIMAL:
        return true;
    default:
        return false;
    }
}

AutomationValue FromNumber(const VARIANT& variant) {
    switch (variant.vt) {
    case VT_I1:
        return Whole(static_cast<signed char>(variant.cVal));
    case VT_UI1:
        return Whole(variant.bVal);
    case VT_I2:
        return Whole(variant.iVal);
    case VT_UI2:
        return Whole(variant.uiVal);
    case VT_I4:
    case VT_INT:
        return Whole(variant.lVal);
    case VT_UI4:
    case VT_UINT:
        return Whole(variant.ulVal);
    case VT_I8:
        return Whole(variant.llVal);
    case VT_UI8:
        return Whole(variant.ullVal);
    case VT_R4:
        return static_cast<double>(variant.fltVal);
    case VT_CY:
        return Currency(variant.cyVal);
    case VT_DECIMAL:
        return Decimal(variant.decVal);
    default:
        return variant.dblVal; // VT_R8, and VT_DATE: a double as well
    }
}

AutomationValue FromObject(IUnknown* object, const ObjectFromDispatch& wrap) {
    if (object == nullptr)
        return AutomationObjectPtr();
    DispatchPtr dispatch;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&dispatch))))
        ThrowTypeMismatch();
    return wrap(dispatch);
}

AutomationValue FromReference(const VARIANT& variant, const ObjectFromDispatch& wrap) {
    _variant_t value;
    VARIANT source = variant; // still refers to what the other refers to
    Check(VariantCopyInd(&value, &source));
    return FromVariant(value, wrap);
}

AutomationArray ReadElements(const SafeArrayAccess& elements, VARTYPE type,
                             const ObjectFromDispatch& wrap) {
    AutomationArray values;
    values.reserve(elements.Count());
    for (std::size_t i = 0; i < elements.Count(); ++i) {
        VARIANT reference{};
        reference.vt = static_cast<VARTYPE>(type | VT_BYREF);
        reference.byref = elements.Element(i);
        values.push_back(FromReference(reference, wrap));
    }
    return values;
}

AutomationValue FromArray(const VARIANT& variant, const ObjectFromDispatch& wrap) {
    const auto type = static_cast<VARTYPE>(variant.vt & VT_TYPEMASK);
    const SafeArrayAccess elements(variant.parray);
    AutomationArray values = ReadElements(elements, type, wrap);
    if (!IsNumberType(type))
        return values;
    std::vector<double> numbers;
    numbers.reserve(values.size());
    for (const AutomationValue& value : values)
        numbers.push_back(value.AsDouble());
    return numbers;
}

// One overload for each kind of value.
class VariantWriter {
public:
    VariantWriter(const DispatchFromObject& unwrap, VARIANT& variant)
        : unwrap_(unwrap), variant_(variant) {}

    void operator()(std::monostate) const {}

    void operator()(bool flag) const {
        variant_.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
        variant_.vt = VT_BOOL;
    }

    void operator()(std::int32_t number) const {
        variant_.lVal = number;
        variant_.vt = VT_I4;
    }

    void operator()(double number) const {
        variant_.dblVal = number;
        variant_.vt = VT_R8;
    }

    void operator()(const std::string& text) const {
        const std::wstring wide = ToUtf16(text);
        variant_.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
        if (variant_.bstrVal == nullptr)
            throw std::bad_alloc();
        variant_.vt = VT_BSTR;
    }

    void operator()(const AutomationObjectPtr& object) const {
        variant_.pdispVal = object ? unwrap_(object).Detach() : nullptr;
        variant_.vt = VT_DISPATCH;
    }

    void operator()(const std::vector<double>& numbers) const {
        MakeArray(VT_R8, numbers.size());
        const SafeArrayAccess elements(variant_.parray);
        for (std::size_t i = 0; i < numbers.size(); ++i)
            *static_cast<double*>(elements.Element(i)) = numbers[i];
    }

    void operator()(const AutomationArray& values) const {
        MakeArray(VT_VARIANT, values.size());
        const SafeArrayAccess elements(variant_.parray);
        for (std::size_t i = 0; i < values.size(); ++i)
            ToVariant(values[i], unwrap_, *static_cast<VARIANT*>(elements.Element(i)));
    }

private:
    void MakeArray(VARTYPE type, std::size_t count) const {
        variant_.parray = SafeArrayCreateVector(type, 0, static_cast<ULONG>(count));
        if (variant_.parray == nullptr)
            throw std::bad_alloc();
        variant_.vt = static_cast<VARTYPE>(VT_ARRAY | type);
    }

    const DispatchFromObject& unwrap_;
    VARIANT& variant_;
};

} // namespace

AutomationValue FromVariant(const VARIANT& variant, const ObjectFromDispatch& wrap) {
    if ((variant.vt & VT_BYREF) != 0)
        return FromReference(variant, wrap);
    if ((variant.vt & VT_ARRAY) != 0)
        return FromArray(variant, wrap);
    if (IsNumberType(variant.vt))
        return FromNumber(variant);
    switch (variant.vt) {
    case VT_EMPTY:
    case VT_NULL:
    case VT_ERROR: // an argument that was left out
        return {};
    case VT_BOOL:
        return variant.boolVal != VARIANT_FALSE;
    case VT_BSTR:
        return ToUtf8(std::wstring_view(variant.bstrVal, SysStringLen(variant.bstrVal)));
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return FromObject(variant.punkVal, wrap);
    default:
        ThrowTypeMismatch();
    }
}

void ToVariant(const AutomationValue& value, const DispatchFromObject& unwrap, VARIANT& variant) {
    std::visit(VariantWriter(unwrap, variant), value.data);
}
