// Tests of points, sizes and rectangles.

TEST(Geometry, PointsAreMovedBySizesAndGiveSizesAsDifferences) {
    EXPECT_EQ(CPoint(10, 20) + CSize(1, 2), CPoint(11, 22));
    EXPECT_EQ(CPoint(10, 20) - CSize(1, 2), CPoint(9, 18));
    const CSize distance = CPoint(10, 20) - CPoint(4, 5);
    EXPECT_EQ(distance, CSize(6, 15));
    EXPECT_EQ(-CPoint(1, -2), CPoint(-1, 2));
    CPoint point(1, 1);
    point.Offset(2, 3);
    point += CSize(10, 10);
    point -= CPoint(1, 0);
    EXPECT_EQ(point, CPoint(12, 14));
}

TEST(Geometry, APointUnpacksTheSignedWordsOfAMessage) {
    EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELPARAM(-3, 500))), CPoint(-3, 500));
}

TEST(Geometry, SizesAddAndSubtract) {
    EXPECT_EQ(CSize(1, 2) + CSize(3, 4), CSize(4, 6));
    EXPECT_EQ(CSize(1, 2) - CSize(3, 4), CSize(-2, -2));
    EXPECT_EQ(-CSize(1, 2), CSize(-1, -2));
    EXPECT_EQ(CSize(1, 2) + CPoint(5, 5), CPoint(6, 7));
    EXPECT_EQ(CSize(CPoint(7, 8)), CSize(7, 8));
}

TEST(Rect, IsMadeFromCornersOrFromACornerAndASize) {
    EXPECT_EQ(CRect(CPoint(1, 2), CSize(10, 20)), CRect(1, 2, 11, 22));
    EXPECT_EQ(CRect(CPoint(1, 2), CPoint(10, 20)), CRect(1, 2, 10, 20));
    const RECT plain{1, 2, 3, 4};
    EXPECT_EQ(CRect(plain), CRect(&plain));
}

TEST(Rect, TellsItsMeasures) {
    const CRect rect(10, 20, 110, 70);
    EXPECT_EQ(rect.Width(), 100);
    EXPECT_EQ(rect.Height(), 50);
    EXPECT_EQ(rect.Size(), CSize(100, 50));
    EXPECT_EQ(rect.TopLeft(), CPoint(10, 20));
    EXPECT_EQ(rect.BottomRight(), CPoint(110, 70));
    EXPECT_EQ(rect.CenterPoint(), CPoint(60, 45));
    EXPECT_EQ(CRect(0, 0, 5, 3).CenterPoint(), CPoint(2, 1));
}

TEST(Rect, CornersCanBeChangedInPlace) {
    CRect rect(1, 2, 3, 4);
    rect.TopLeft() = CPoint(0, 0);
    rect.BottomRight().x = 9;
    EXPECT_EQ(rect, CRect(0, 0, 9, 4));
}

TEST(Rect, IsEmptyWithoutAreaAndNullAtZero) {
    EXPECT_TRUE(CRect(5, 5, 5, 10).IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 4, 10).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 6, 6).IsRectEmpty());
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_FALSE(CRect(1, 1, 1, 1).IsRectNull());
}

TEST(Rect, HoldsItsLeftAndTopButNotItsRightAndBottom) {
    const CRect rect(10, 20, 30, 40);
    EXPECT_TRUE(rect.PtInRect(CPoint(10, 20)));
    EXPECT_TRUE(rect.PtInRect(CPoint(29, 39)));
    EXPECT_FALSE(rect.PtInRect(CPoint(30, 39)));
    EXPECT_FALSE(rect.PtInRect(CPoint(29, 40)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 20)));
}

TEST(Rect, InflatesAndDeflates) {
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(rect, CRect(9, 8, 21, 22));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(8, 6, 24, 26));
    const CRect amounts(1, 2, 3, 4);
    rect.DeflateRect(&amounts);
    EXPECT_EQ(rect, CRect(9, 8, 21, 22));
    rect.DeflateRect(CSize(1, 2));
    EXPECT_EQ(rect, CRect(10, 10, 20, 20));
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(11, 12, 17, 16));
}

TEST(Rect, Moves) {
    CRect rect(10, 10, 20, 30);
    rect.OffsetRect(5, -5);
    EXPECT_EQ(rect, CRect(15, 5, 25, 25));
    rect.MoveToXY(0, 0);
    EXPECT_EQ(rect, CRect(0, 0, 10, 20));
    rect.MoveToX(100);
    rect.MoveToY(200);
    EXPECT_EQ(rect, CRect(100, 200, 110, 220));
    EXPECT_EQ(rect + CPoint(1, 1), CRect(101, 201, 111, 221));
    EXPECT_EQ(rect - CSize(100, 200), CRect(0, 0, 10, 20));
}

TEST(Rect, NormalizesSwappedSides) {
    CRect rect(20, 5, 10, 1);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(10, 1, 20, 5));
}

TEST(Rect, IntersectsAndUnites) {
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 6, 20, 20);
    CRect result;
    EXPECT_TRUE(result.IntersectRect(a, b));
    EXPECT_EQ(result, CRect(5, 6, 10, 10));
    EXPECT_EQ(a & b, result);
    EXPECT_TRUE(result.UnionRect(a, b));
    EXPECT_EQ(result, CRect(0, 0, 20, 20));
    EXPECT_EQ(a | b, result);
    EXPECT_FALSE(result.IntersectRect(a, CRect(10, 0, 20, 10)));
    EXPECT_EQ(result, CRect());
    EXPECT_EQ(a | CRect(50, 50, 50, 50), a);
}

TEST(Rect, SubtractsOnlyWhatCoversAWholeSide) {
    CRect result;
    EXPECT_TRUE(result.SubtractRect(CRect(0, 0, 10, 10), CRect(5, 0, 20, 10)));
    EXPECT_EQ(result, CRect(0, 0, 5, 10));
    EXPECT_TRUE(result.SubtractRect(CRect(0, 0, 10, 10), CRect(5, 5, 20, 20)));
    EXPECT_EQ(result, CRect(0, 0, 10, 10));
}

TEST(Rect, ScalesWithRounding) { EXPECT_EQ(CRect(0, 1, 3, 5).MulDiv(3, 2), CRect(0, 2, 5, 8)); }

TEST(Rect, ServesTheSystemAsAStructure) {
    CRect rect;
    ::SetRect(rect, 1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    static_assert(sizeof(CRect) == sizeof(RECT) && sizeof(CPoint) == sizeof(POINT) && sizeof(CSize) == sizeof(SIZE));
}
