// Tests of objects in archives.

namespace {

class Node : public CObject {
    DECLARE_SERIAL(Node)
public:
    void Serialize(CArchive& archive) override {
        if (archive.IsStoring()) {
            archive << m_value << m_next;
        } else {
            m_schema = archive.GetObjectSchema();
            archive >> m_value >> m_next;
        }
    }

    int m_value = 0;
    Node* m_next = nullptr; // owned by the test
    UINT m_schema = 0;
};

class Leaf : public Node {
    DECLARE_SERIAL(Leaf)
};

class Plain : public CObject {
    DECLARE_DYNCREATE(Plain)
};

IMPLEMENT_SERIAL(Node, CObject, 3)
IMPLEMENT_SERIAL(Leaf, Node, 1)
IMPLEMENT_DYNCREATE(Plain, CObject)

/// The bytes that writing made, changed at will, and read back.
class ArchivedObjects : public testing::Test {
protected:
    void Store(const std::function<void(CArchive&)>& write) {
        CMemFile file;
        {
            CArchive archive(&file, CArchive::store);
            write(archive);
        }
        m_bytes.resize(file.GetLength());
        file.SeekToBegin();
        file.Read(m_bytes.data(), static_cast<UINT>(m_bytes.size()));
    }

    void Load(const std::function<void(CArchive&)>& read) {
        CMemFile file(m_bytes.data(), static_cast<UINT>(m_bytes.size()));
        CArchive archive(&file, CArchive::load);
        read(archive);
    }

    int CauseOfLoading(const CRuntimeClass* expected) {
        try {
            Load([&](CArchive& archive) { delete archive.ReadObject(expected); });
        } catch (CArchiveException* exception) {
            const int cause = exception->m_cause;
            exception->Delete();
            return cause;
        }
        return CArchiveException::none;
    }

    std::vector<BYTE> m_bytes;
};

} // namespace

TEST_F(ArchivedObjects, AnObjectIsStoredWithItsClassNameAndSchema) {
    Node node;
    node.m_value = 5;
    Store([&](CArchive& archive) { archive << &node; });
    EXPECT_THAT(m_bytes, testing::ElementsAre(0xFF, 0xFF, 3, 0, 4, 0, 'N', 'o', 'd', 'e', 5, 0, 0, 0, 0, 0));
}

TEST_F(ArchivedObjects, AnObjectAndAClassAreStoredOnce) {
    Node first;
    Node second;
    Store([&](CArchive& archive) { archive << &first << &second << &first; });
    // The class is number 1, the objects are 2 and 3.
    EXPECT_EQ(m_bytes.size(), 16u + 8u + 2u);
    EXPECT_EQ(m_bytes[16], 1);
    EXPECT_EQ(m_bytes[17], 0x80);
    EXPECT_EQ(m_bytes[24], 2);
}

TEST_F(ArchivedObjects, AGraphIsReadBackWithItsIdentities) {
    Node first;
    Leaf second;
    first.m_value = 1;
    second.m_value = 2;
    first.m_next = &second;
    second.m_next = &first;
    Store([&](CArchive& archive) { archive << &first << &second << static_cast<CObject*>(nullptr); });
    Load([](CArchive& archive) {
        Node* one = nullptr;
        Node* two = nullptr;
        Node* none = one;
        archive >> one >> two >> none;
        ASSERT_NE(one, nullptr);
        ASSERT_NE(two, nullptr);
        EXPECT_EQ(none, nullptr);
        EXPECT_EQ(one->m_value, 1);
        EXPECT_EQ(two->m_value, 2);
        EXPECT_EQ(one->m_next, two);
        EXPECT_EQ(two->m_next, one);
        EXPECT_EQ(two->GetRuntimeClass(), RUNTIME_CLASS(Leaf));
        EXPECT_EQ(one->m_schema, 3u);
        EXPECT_EQ(two->m_schema, 1u);
        delete one;
        delete two;
    });
}

TEST_F(ArchivedObjects, ManyObjectsNeedWideNumbers) {
    constexpr int count = 0x8100;
    std::vector<std::unique_ptr<Node>> owned;
    Store([&](CArchive& archive) {
        for (int i = 0; i < count; ++i) {
            owned.push_back(std::make_unique<Node>());
            owned.back()->m_value = i;
            archive << owned.back().get();
        }
        archive << owned.back().get();
    });
    Load([&](CArchive& archive) {
        std::vector<std::unique_ptr<Node>> read;
        Node* node = nullptr;
        for (int i = 0; i < count; ++i) {
            archive >> node;
            read.emplace_back(node);
            ASSERT_EQ(node->m_value, i);
        }
        archive >> node;
        EXPECT_EQ(node, read.back().get());
    });
}

TEST_F(ArchivedObjects, AClassWithoutSerialCannotBeStored) {
    Plain plain;
    EXPECT_FALSE(plain.IsSerializable());
    EXPECT_TRUE(Node().IsSerializable());
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    EXPECT_THROW(archive << &plain, CNotSupportedException*);
}

TEST_F(ArchivedObjects, AnotherClassThanExpectedIsRefused) {
    Node node;
    Store([&](CArchive& archive) { archive << &node; });
    EXPECT_EQ(CauseOfLoading(RUNTIME_CLASS(Node)), CArchiveException::none);
    EXPECT_EQ(CauseOfLoading(RUNTIME_CLASS(CObject)), CArchiveException::none);
    EXPECT_EQ(CauseOfLoading(RUNTIME_CLASS(Leaf)), CArchiveException::badClass);
}

TEST_F(ArchivedObjects, AnotherVersionIsRefused) {
    Node node;
    Store([&](CArchive& archive) { archive << &node; });
    m_bytes[2] = 4;
    EXPECT_EQ(CauseOfLoading(RUNTIME_CLASS(Node)), CArchiveException::badSchema);
}

TEST_F(ArchivedObjects, AnUnknownClassIsRefused) {
    Node node;
    Store([&](CArchive& archive) { archive << &node; });
    m_bytes[6] = 'M';
    EXPECT_EQ(CauseOfLoading(RUNTIME_CLASS(Node)), CArchiveException::badClass);
    m_bytes[5] = 0x7F; // the name is said to be long
    EXPECT_EQ(CauseOfLoading(RUNTIME_CLASS(Node)), CArchiveException::badClass);
}

TEST_F(ArchivedObjects, NumbersThatLeadNowhereAreRefused) {
    m_bytes = {9, 0};
    EXPECT_EQ(CauseOfLoading(nullptr), CArchiveException::badIndex);
    m_bytes = {9, 0x80};
    EXPECT_EQ(CauseOfLoading(nullptr), CArchiveException::badIndex);
    m_bytes = {0xFF, 0x7F, 0xFF, 0xFF, 0xFF, 0x7F};
    EXPECT_EQ(CauseOfLoading(nullptr), CArchiveException::badIndex);
    m_bytes = {0x00, 0x80};
    EXPECT_EQ(CauseOfLoading(nullptr), CArchiveException::badIndex);
}

TEST_F(ArchivedObjects, ACutObjectIsRefused) {
    Node node;
    Store([&](CArchive& archive) { archive << &node; });
    m_bytes.resize(12);
    EXPECT_EQ(CauseOfLoading(RUNTIME_CLASS(Node)), CArchiveException::endOfFile);
}
