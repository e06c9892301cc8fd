// Rules: SolidWorks session
#include "platform/VariantConversion.h"

#include "common/RuntimeError.h"
#include "tests/platform/FakeDispatch.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

class WrappedObject : public AutomationObject {
public:
    explicit WrappedObject(DispatchPtr held) : dispatch(std::move(held)) {}
    AutomationValue Invoke(const std::string&, const AutomationArray&) override { return {}; }
    void Put(const std::string&, const AutomationValue&) override {}
    DispatchPtr dispatch;
};

AutomationObjectPtr Wrap(const DispatchPtr& dispatch) {
    return std::make_shared<WrappedObject>(dispatch);
}

DispatchPtr Unwrap(const AutomationObjectPtr& object) {
    return dynamic_cast<WrappedObject&>(*object).dispatch;
}

_variant_t Typed(VARTYPE type) {
    _variant_t variant;
    variant.vt = type;
    return variant;
}

template <typename T>
AutomationValue FromScalar(VARTYPE type, T number) {
    _variant_t variant = Typed(type);
    variant.llVal = 0;
    std::memcpy(&variant.llVal, &number, sizeof number);
    return FromVariant(variant, Wrap);
}

template <typename T>
AutomationValue FromVector(VARTYPE type, std::vector<T> elements) {
    _variant_t variant = Typed(static_cast<VARTYPE>(VT_ARRAY | type));
    variant.parray = SafeArrayCreateVector(type, 3, static_cast<ULONG>(elements.size()));
    for (std::size_t i = 0; i < elements.size(); ++i) {
        LONG index = static_cast<LONG>(i) + 3;
        SafeArrayPutElement(variant.parray, &index, &elements[i]);
    }
    return FromVariant(variant, Wrap);
}

AutomationValue ThereAndBack(const AutomationValue& value) {
    _variant_t variant;
    ToVariant(value, Unwrap, variant);
    return FromVariant(variant, Wrap);
}

const AutomationArray& Elements(const AutomationValue& value) {
    return std::get<AutomationArray>(value.data);
}

} // namespace

TEST(FromVariant, EmptyNullAndErrorAreTheEmptyValue) {
    for (const VARTYPE type : std::initializer_list<VARTYPE>{VT_EMPTY, VT_NULL, VT_ERROR})
        EXPECT_TRUE(FromVariant(Typed(type), Wrap).IsEmpty()) << type;
}

TEST(FromVariant, EveryWholeNumberTypeGivesAWholeNumber) {
    using Int = std::int32_t;
    EXPECT_EQ(std::get<Int>(FromScalar<signed char>(VT_I1, -5).data), -5);
    EXPECT_EQ(std::get<Int>(FromScalar<unsigned char>(VT_UI1, 200).data), 200);
    EXPECT_EQ(std::get<Int>(FromScalar<short>(VT_I2, -300).data), -300);
    EXPECT_EQ(std::get<Int>(FromScalar<unsigned short>(VT_UI2, 60000).data), 60000);
    EXPECT_EQ(std::get<Int>(FromScalar<long>(VT_I4, -70000).data), -70000);
    EXPECT_EQ(std::get<Int>(FromScalar<int>(VT_INT, -70000).data), -70000);
    EXPECT_EQ(std::get<Int>(FromScalar<unsigned long>(VT_UI4, 70000).data), 70000);
    EXPECT_EQ(std::get<Int>(FromScalar<unsigned>(VT_UINT, 70000).data), 70000);
    EXPECT_EQ(std::get<Int>(FromScalar<long long>(VT_I8, -70000).data), -70000);
    EXPECT_EQ(std::get<Int>(FromScalar<unsigned long long>(VT_UI8, 70000).data), 70000);
}

TEST(FromVariant, WholeNumberBeyond32BitsGivesADouble) {
    EXPECT_EQ(std::get<double>(FromScalar<unsigned long>(VT_UI4, 4000000000U).data), 4e9);
    EXPECT_EQ(std::get<double>(FromScalar<long long>(VT_I8, -5000000000LL).data), -5e9);
}

TEST(FromVariant, EveryFractionTypeGivesADouble) {
    EXPECT_EQ(std::get<double>(FromScalar<float>(VT_R4, 0.5F).data), 0.5);
    EXPECT_EQ(std::get<double>(FromScalar<double>(VT_R8, 128 / 255.0).data), 128 / 255.0);
    EXPECT_EQ(std::get<double>(FromScalar<double>(VT_DATE, 2.25).data), 2.25);
    EXPECT_EQ(std::get<double>(FromScalar<long long>(VT_CY, 12345).data), 1.2345);
    _variant_t decimal = Typed(VT_EMPTY);
    decimal.decVal = {};
    decimal.decVal.scale = 2;
    decimal.decVal.Lo64 = 150;
    decimal.vt = VT_DECIMAL;
    EXPECT_EQ(std::get<double>(FromVariant(decimal, Wrap).data), 1.5);
}

TEST(FromVariant, BooleanIsTrueForEveryNumberButZero) {
    EXPECT_EQ(std::get<bool>(FromScalar<short>(VT_BOOL, -1).data), true);
    EXPECT_EQ(std::get<bool>(FromScalar<short>(VT_BOOL, 1).data), true);
    EXPECT_EQ(std::get<bool>(FromScalar<short>(VT_BOOL, 0).data), false);
}

TEST(FromVariant, TextKeepsEveryCharacterAndANullTextIsEmpty) {
    EXPECT_EQ(FromVariant(_variant_t(L"\u00FC\U0001F3A8"), Wrap).AsString(),
              "\xC3\xBC\xF0\x9F\x8E\xA8");
    EXPECT_EQ(FromVariant(Typed(VT_BSTR), Wrap).AsString(), "");
}

TEST(FromVariant, NullObjectIsNothing) {
    EXPECT_EQ(std::get<AutomationObjectPtr>(FromVariant(Typed(VT_DISPATCH), Wrap).data), nullptr);
    EXPECT_EQ(std::get<AutomationObjectPtr>(FromVariant(Typed(VT_UNKNOWN), Wrap).data), nullptr);
}

TEST(FromVariant, ObjectIsWrappedAndHeldOnce) {
    FakeDispatch fake;
    {
        AutomationObjectPtr object;
        {
            const _variant_t variant(static_cast<IDispatch*>(&fake));
            object = FromVariant(variant, Wrap).AsObject();
        }
        EXPECT_EQ(Unwrap(object).Get(), &fake);
        EXPECT_EQ(fake.References(), 1U);
    }
    EXPECT_EQ(fake.References(), 0U);
}

TEST(FromVariant, UnknownInterfaceIsAskedForAutomation) {
    FakeDispatch fake;
    const _variant_t variant(static_cast<IUnknown*>(&fake));
    EXPECT_NE(FromVariant(variant, Wrap).AsObject(), nullptr);
}

TEST(FromVariant, ReferencesAreFollowed) {
    double number = 0.25;
    VARIANT variant{};
    variant.vt = VT_R8 | VT_BYREF;
    variant.pdblVal = &number;
    EXPECT_EQ(FromVariant(variant, Wrap).AsDouble(), 0.25);
    VARIANT outer{};
    outer.vt = VT_VARIANT | VT_BYREF;
    outer.pvarVal = &variant;
    EXPECT_EQ(FromVariant(outer, Wrap).AsDouble(), 0.25);
}

TEST(FromVariant, ArrayByReferenceIsReadAndStaysItsOwners) {
    const double numbers[] = {0.1, 0.2};
    SAFEARRAY* array = SafeArrayCreateVector(VT_R8, 0, 2);
    std::copy(std::begin(numbers), std::end(numbers), static_cast<double*>(array->pvData));
    VARIANT variant{};
    variant.vt = VT_ARRAY | VT_R8 | VT_BYREF;
    variant.pparray = &array;
    EXPECT_EQ(std::get<std::vector<double>>(FromVariant(variant, Wrap).data),
              (std::vector<double>{0.1, 0.2}));
    EXPECT_EQ(SafeArrayDestroy(array), S_OK);
}

TEST(FromVariant, ArraysOfNumbersOfEveryTypeGiveDoubles) {
    const std::vector<double> expected = {1, 2, 3};
    using Doubles = std::vector<double>;
    EXPECT_EQ(std::get<Doubles>(FromVector<double>(VT_R8, {1, 2, 3}).data), expected);
    EXPECT_EQ(std::get<Doubles>(FromVector<float>(VT_R4, {1, 2, 3}).data), expected);
    EXPECT_EQ(std::get<Doubles>(FromVector<long>(VT_I4, {1, 2, 3}).data), expected);
    EXPECT_EQ(std::get<Doubles>(FromVector<short>(VT_I2, {1, 2, 3}).data), expected);
    EXPECT_EQ(std::get<Doubles>(FromVector<unsigned long>(VT_UI4, {1, 2, 3}).data), expected);
}

TEST(FromVariant, ArrayOfVariantsKeepsEachKind) {
    std::vector<VARIANT> elements(3);
    elements[0].vt = VT_I4;
    elements[0].lVal = 7;
    elements[1].vt = VT_R8;
    elements[1].dblVal = 0.5;
    _variant_t variant = Typed(VT_ARRAY | VT_VARIANT);
    variant.parray = SafeArrayCreateVector(VT_VARIANT, 0, 3);
    std::copy(elements.begin(), elements.end(), static_cast<VARIANT*>(variant.parray->pvData));
    const AutomationValue value = FromVariant(variant, Wrap);
    ASSERT_EQ(Elements(value).size(), 3U);
    EXPECT_EQ(std::get<std::int32_t>(Elements(value)[0].data), 7);
    EXPECT_EQ(std::get<double>(Elements(value)[1].data), 0.5);
    EXPECT_TRUE(Elements(value)[2].IsEmpty());
}

TEST(FromVariant, ArrayOfObjectsHoldsEachOnce) {
    FakeDispatch fake;
    {
        _variant_t variant = Typed(VT_ARRAY | VT_DISPATCH);
        variant.parray = SafeArrayCreateVector(VT_DISPATCH, 0, 2);
        LONG index = 1;
        SafeArrayPutElement(variant.parray, &index, static_cast<IDispatch*>(&fake));
        const AutomationValue value = FromVariant(variant, Wrap);
        EXPECT_EQ(Elements(value).at(0).AsObject(), nullptr);
        EXPECT_EQ(Unwrap(Elements(value).at(1).AsObject()).Get(), &fake);
        EXPECT_EQ(fake.References(), 2U); // the array's and the value's
    }
    EXPECT_EQ(fake.References(), 0U);
}

TEST(FromVariant, EmptyAndMissingArraysHaveNoElements) {
    EXPECT_TRUE(std::get<std::vector<double>>(FromVector<double>(VT_R8, {}).data).empty());
    EXPECT_TRUE(Elements(FromVariant(Typed(VT_ARRAY | VT_VARIANT), Wrap)).empty());
}

TEST(FromVariant, ArrayOfTwoDimensionsIsATypeMismatch) {
    SAFEARRAYBOUND bounds[2] = {{2, 0}, {2, 0}};
    _variant_t variant = Typed(VT_ARRAY | VT_R8);
    variant.parray = SafeArrayCreate(VT_R8, 2, bounds);
    EXPECT_THROW(static_cast<void>(FromVariant(variant, Wrap)), RuntimeError);
}

TEST(FromVariant, UnknownKindIsATypeMismatch) {
    VARIANT variant{};
    variant.vt = VT_CLSID;
    EXPECT_THROW(static_cast<void>(FromVariant(variant, Wrap)), RuntimeError);
}

TEST(ToVariant, EachKindHasItsVariantType) {
    const auto typeOf = [](const AutomationValue& value) {
        _variant_t variant;
        ToVariant(value, Unwrap, variant);
        return variant.vt;
    };
    EXPECT_EQ(typeOf({}), VT_EMPTY);
    EXPECT_EQ(typeOf(true), VT_BOOL);
    EXPECT_EQ(typeOf(std::int32_t{1}), VT_I4);
    EXPECT_EQ(typeOf(1.0), VT_R8);
    EXPECT_EQ(typeOf("x"), VT_BSTR);
    EXPECT_EQ(typeOf(AutomationObjectPtr()), VT_DISPATCH);
    EXPECT_EQ(typeOf(std::vector<double>{1}), VT_ARRAY | VT_R8);
    EXPECT_EQ(typeOf(AutomationArray{1.0}), VT_ARRAY | VT_VARIANT);
}

TEST(ToVariant, TrueIsAllBitsSet) {
    _variant_t variant;
    ToVariant(true, Unwrap, variant);
    EXPECT_EQ(variant.boolVal, VARIANT_TRUE);
}

TEST(ToVariant, ArrayOfDoublesHasOneDimensionFromZero) {
    _variant_t variant;
    ToVariant(std::vector<double>{0.1, 0.2, 0.3}, Unwrap, variant);
    LONG lower = -1;
    LONG upper = -1;
    EXPECT_EQ(SafeArrayGetDim(variant.parray), 1U);
    SafeArrayGetLBound(variant.parray, 1, &lower);
    SafeArrayGetUBound(variant.parray, 1, &upper);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 2);
    EXPECT_EQ(static_cast<double*>(variant.parray->pvData)[2], 0.3);
}

TEST(ToVariant, NullObjectIsANullInterface) {
    _variant_t variant;
    ToVariant(AutomationObjectPtr(), Unwrap, variant);
    EXPECT_EQ(variant.pdispVal, nullptr);
}

TEST(ToVariant, ObjectIsUnwrappedAndHeldByTheVariant) {
    FakeDispatch fake;
    {
        _variant_t variant;
        ToVariant(Wrap(&fake), Unwrap, variant);
        EXPECT_EQ(variant.pdispVal, &fake);
        EXPECT_EQ(fake.References(), 1U);
    }
    EXPECT_EQ(fake.References(), 0U);
}

TEST(ToVariant, FailureInsideAnArrayLeaksNothing) {
    FakeDispatch fake;
    {
        _variant_t variant;
        const auto failing = [&](const AutomationObjectPtr& object) -> DispatchPtr {
            if (object == nullptr || variant.vt == VT_EMPTY)
                throw RuntimeError(ErrorNumber::TypeMismatch, "Type mismatch");
            return Unwrap(object);
        };
        int unwrapped = 0;
        const auto failingAtTheSecond = [&](const AutomationObjectPtr& object) {
            return ++unwrapped == 2 ? throw RuntimeError(1, "x") : failing(object);
        };
        const AutomationArray objects = {Wrap(&fake), Wrap(&fake)};
        EXPECT_THROW(ToVariant(objects, failingAtTheSecond, variant), RuntimeError);
    }
    EXPECT_EQ(fake.References(), 0U);
}

TEST(VariantConversion, TextsAndNestedArraysComeBackEqual) {
    const std::string text("a\0\xC3\xBC", 4);
    EXPECT_EQ(ThereAndBack(text).AsString(), text);
    const AutomationValue value = ThereAndBack(
        AutomationArray{std::int32_t{1}, "two", AutomationArray{3.0}, std::vector<double>{4, 5}});
    EXPECT_EQ(Elements(value)[0].AsInt32(), 1);
    EXPECT_EQ(Elements(value)[1].AsString(), "two");
    EXPECT_EQ(Elements(Elements(value)[2])[0].AsDouble(), 3.0);
    EXPECT_EQ(std::get<std::vector<double>>(Elements(value)[3].data), (std::vector<double>{4, 5}));
}
