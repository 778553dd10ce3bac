#include "Painel/ByteParts.hpp"
#include "Painel/DotMatrixLogoCanvas.hpp"
#include "Painel/LEDMeterCanvas.hpp"
#include "Painel/LEDNumberCanvas.hpp"
#include "Support/QmlTestSupport.hpp"

#include <gtest/gtest.h>

TEST(ByteParts, SplitLikeTheEngineInBothLanguages) {
    EXPECT_EQ(ByteParts::make(1'234'567, "en"), (ByteParts{"1", "2", "MB", "1.2 megabytes"}));
    EXPECT_EQ(ByteParts::make(1'234'567, "pt-BR"), (ByteParts{"1", "2", "MB", "1,2 megabyte"}));
    EXPECT_EQ(ByteParts::make(12'500'000'000, "pt-BR"), (ByteParts{"12", "5", "GB", "12,5 gigabytes"}));
    EXPECT_EQ(ByteParts::make(0, "en"), (ByteParts{"0", "", "bytes", "0 bytes"}));
    EXPECT_EQ(ByteParts::make(999, "en").fraction, "");

    QmlTestSupport::useLanguage("pt-BR");
    const ByteParts followed = ByteParts::make(1'234'567);
    QmlTestSupport::useLanguage("en");
    EXPECT_EQ(followed.spoken, "1,2 megabyte") << "no locale means the application's language";
    EXPECT_EQ(ByteParts::make(1'234'567).spoken, "1.2 megabytes");
}

TEST(LEDNumberCanvas, TakesBytesOrPartsAndMakesRoomForEachPiece) {
    LEDNumberCanvas number;
    number.setLocale("pt-BR");
    number.setBytes(1'234'567);
    EXPECT_EQ(number.integer(), "1");
    EXPECT_EQ(number.fraction(), "2");
    EXPECT_EQ(number.spoken(), "1,2 megabyte");
    const qreal withFraction = number.implicitWidth();
    number.setLocale("en");
    EXPECT_EQ(number.spoken(), "1.2 megabytes") << "a byte count is split again for a new locale";

    number.setBytes(2'000'000);
    EXPECT_EQ(number.fraction(), "");
    EXPECT_LT(number.implicitWidth(), withFraction) << "no dot and no fraction without a separator";

    // Setting a part by hand turns the content into parts: the locale no longer rewrites it.
    number.setInteger("42");
    number.setUnit("%");
    number.setLocale("pt-BR");
    EXPECT_EQ(number.integer(), "42");
    EXPECT_EQ(number.fraction(), "");
    EXPECT_EQ(number.spoken(), "42 %") << "parts without words are read as drawn";
    number.setSpoken("42 percent");
    EXPECT_EQ(number.spoken(), "42 percent");

    const qreal withUnit = number.implicitWidth();
    number.setUnit("");
    EXPECT_LT(number.implicitWidth(), withUnit);
    const qreal small = number.implicitHeight();
    number.setSize(80);
    EXPECT_GT(number.implicitHeight(), small);
}

TEST(LEDMeterCanvas, NeitherAlmostEmptyNorAlmostFullHides) {
    EXPECT_EQ(LEDMeterCanvas::litCells(0, 10), 0);
    EXPECT_EQ(LEDMeterCanvas::litCells(-1, 10), 0);
    EXPECT_EQ(LEDMeterCanvas::litCells(std::nan(""), 10), 0);
    EXPECT_EQ(LEDMeterCanvas::litCells(0.001, 10), 1);
    EXPECT_EQ(LEDMeterCanvas::litCells(0.44, 10), 4);
    EXPECT_EQ(LEDMeterCanvas::litCells(0.46, 10), 5);
    EXPECT_EQ(LEDMeterCanvas::litCells(0.999, 10), 9);
    EXPECT_EQ(LEDMeterCanvas::litCells(1, 10), 10);
    EXPECT_EQ(LEDMeterCanvas::litCells(3, 10), 10);
    EXPECT_EQ(LEDMeterCanvas::litCells(0.5, 1), 1);
}

TEST(LEDMeterCanvas, FillsFromTheLeadingEdgeAndFromTheBottom) {
    LEDMeterCanvas meter;
    meter.setSize(QSizeF(104, 8));
    meter.setCells(10);
    meter.setSpacing(2);
    EXPECT_EQ(meter.cellRect(0), QRectF(0, 0, 8.6, 8));
    EXPECT_DOUBLE_EQ(meter.cellRect(9).right(), 104);
    meter.setMirrored(true);
    EXPECT_DOUBLE_EQ(meter.cellRect(0).right(), 104);
    EXPECT_NEAR(meter.cellRect(9).left(), 0, 1e-9);

    meter.setMirrored(false);
    meter.setAxis(Qt::Vertical);
    meter.setSize(QSizeF(8, 104));
    EXPECT_DOUBLE_EQ(meter.cellRect(0).bottom(), 104)
        << "the first cell of a vertical meter is at the bottom";
    EXPECT_NEAR(meter.cellRect(9).top(), 0, 1e-9);

    meter.setFillsCrossAxis(false);
    meter.setSize(QSizeF(20, 104));
    const QRectF square = meter.cellRect(3);
    EXPECT_DOUBLE_EQ(square.width(), square.height());
    EXPECT_DOUBLE_EQ(square.center().x(), 10);
}

TEST(DotMatrixLogoCanvas, PowersOnOneLetterAtATimeWithAnEaseOut) {
    DotMatrixLogoCanvas logo;
    ASSERT_EQ(logo.stepCount(), 8);
    EXPECT_FALSE(DotMatrixLogoCanvas::isFigure(logo.columns(), 0)) << "nothing past the last column";

    EXPECT_DOUBLE_EQ(DotMatrixLogoCanvas::brightness(0, 0), 0);
    EXPECT_DOUBLE_EQ(DotMatrixLogoCanvas::brightness(2, 2), 0) << "a step starts unlit";
    EXPECT_GT(DotMatrixLogoCanvas::brightness(2, 2.5), 0.5) << "and is more than half lit half-way";
    EXPECT_DOUBLE_EQ(DotMatrixLogoCanvas::brightness(2, 3), 1);
    EXPECT_DOUBLE_EQ(DotMatrixLogoCanvas::brightness(0, 8), 1);
    logo.setLitCount(99);
    EXPECT_EQ(logo.litCount(), 8);
}
