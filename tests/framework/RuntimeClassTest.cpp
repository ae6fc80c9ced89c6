// Tests of run-time class information.

namespace {

class Shape : public CObject {
    DECLARE_DYNAMIC(Shape)
};
IMPLEMENT_DYNAMIC(Shape, CObject)

class Circle : public Shape {
    DECLARE_DYNCREATE(Circle)
public:
    int m_radius = 7;
};
IMPLEMENT_DYNCREATE(Circle, Shape)

class Ring : public Circle {
    DECLARE_DYNCREATE(Ring)
};
IMPLEMENT_DYNCREATE(Ring, Circle)

} // namespace

TEST(RuntimeClass, TellsNameSizeAndBase) {
    const CRuntimeClass* circle = RUNTIME_CLASS(Circle);
    EXPECT_STREQ(circle->m_lpszClassName, "Circle");
    EXPECT_EQ(circle->m_nObjectSize, static_cast<int>(sizeof(Circle)));
    EXPECT_EQ(circle->m_wSchema, 0xFFFFu);
    EXPECT_EQ(circle->m_pfnGetBaseClass(), RUNTIME_CLASS(Shape));
}

TEST(RuntimeClass, AnObjectIsOfItsClassAndOfEveryBase) {
    Ring ring;
    EXPECT_TRUE(ring.IsKindOf(RUNTIME_CLASS(Ring)));
    EXPECT_TRUE(ring.IsKindOf(RUNTIME_CLASS(Circle)));
    EXPECT_TRUE(ring.IsKindOf(RUNTIME_CLASS(Shape)));
    EXPECT_TRUE(ring.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(ring.IsKindOf(RUNTIME_CLASS(CException)));
    const Shape shape;
    EXPECT_FALSE(shape.IsKindOf(RUNTIME_CLASS(Circle)));
}

TEST(RuntimeClass, TheChainCrossesTheLibrary) {
    const CFileException exception;
    EXPECT_TRUE(exception.IsKindOf(RUNTIME_CLASS(CFileException)));
    EXPECT_TRUE(exception.IsKindOf(RUNTIME_CLASS(CException)));
    EXPECT_TRUE(exception.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(exception.IsKindOf(RUNTIME_CLASS(CArchiveException)));
}

TEST(RuntimeClass, TheDynamicClassIsToldThroughABasePointer) {
    const Ring ring;
    const CObject* object = &ring;
    EXPECT_EQ(object->GetRuntimeClass(), RUNTIME_CLASS(Ring));
}

TEST(RuntimeClass, CreatesObjectsOfItsClass) {
    const std::unique_ptr<CObject> object(RUNTIME_CLASS(Circle)->CreateObject());
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->GetRuntimeClass(), RUNTIME_CLASS(Circle));
    EXPECT_EQ(STATIC_DOWNCAST(Circle, object.get())->m_radius, 7);
}

TEST(RuntimeClass, AClassWithoutACreationFunctionCreatesNothing) {
    EXPECT_EQ(RUNTIME_CLASS(Shape)->CreateObject(), nullptr);
}

TEST(RuntimeClass, IsFoundByItsName) {
    EXPECT_EQ(CRuntimeClass::FromName("Ring"), RUNTIME_CLASS(Ring));
    EXPECT_EQ(CRuntimeClass::FromName(L"CFileException"), RUNTIME_CLASS(CFileException));
    EXPECT_EQ(CRuntimeClass::FromName("ring"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(L"R\u00EDng"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(static_cast<LPCSTR>(nullptr)), nullptr);
}

TEST(RuntimeClass, CreatesObjectsByName) {
    const std::unique_ptr<CObject> ring(CRuntimeClass::CreateObject("Ring"));
    ASSERT_NE(ring, nullptr);
    EXPECT_TRUE(ring->IsKindOf(RUNTIME_CLASS(Ring)));
    EXPECT_EQ(CRuntimeClass::CreateObject("Shape"), nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject(L"NoSuchClass"), nullptr);
}

TEST(RuntimeClass, DynamicDowncastGivesNullForAnotherClass) {
    Ring ring;
    CObject* object = &ring;
    EXPECT_EQ(DYNAMIC_DOWNCAST(Circle, object), &ring);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CException, object), nullptr);
    object = nullptr;
    EXPECT_EQ(DYNAMIC_DOWNCAST(Circle, object), nullptr);
}

TEST(RuntimeClass, AClassLeavesTheListWithItsRegistration) {
    static CRuntimeClass first = {"PassingFirst", 8, 0xFFFF, nullptr, &CObject::GetThisClass, nullptr};
    static CRuntimeClass second = {"PassingSecond", 8, 0xFFFF, nullptr, &CObject::GetThisClass, nullptr};
    {
        auto registration = std::make_unique<AFX_CLASSINIT>(&first);
        const AFX_CLASSINIT later(&second);
        EXPECT_EQ(CRuntimeClass::FromName("PassingFirst"), &first);
        registration.reset();
        EXPECT_EQ(CRuntimeClass::FromName("PassingFirst"), nullptr);
        EXPECT_EQ(CRuntimeClass::FromName("PassingSecond"), &second);
    }
    EXPECT_EQ(CRuntimeClass::FromName("PassingSecond"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("Ring"), RUNTIME_CLASS(Ring));
}
