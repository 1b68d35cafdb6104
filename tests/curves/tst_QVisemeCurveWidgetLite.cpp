#include "QVisemeCurveWidgetLite.h"
#include "VelaTest.h"

#include <QMimeData>
#include <QToolButton>
#include <QtTest>

#include <cmath>
#include <memory>

using Keys = QList<QPointF>;

namespace {

// A 400 × 250 widget with a column of twelve 60-pixel slot buttons: the plotting area spans
// x 15..311 and y 15..237.
constexpr int kLeft = 15, kTop = 15, kRight = 311, kBottom = 237;

const QStringList kApplied = { "ClearKeys", "ApplyVisemeData" };
const char kButtonFormat[] = "application/x-visemebutton";
const char kListItemFormat[] = "application/x-visemelistitem";

QPoint pixelOf(QPointF key)
{
    return QPoint(int(kLeft + (kRight - kLeft) * key.x()),
                  int(kBottom - (kBottom - kTop) * key.y()));
}

// The key that a press at pixel (x, y) makes, computed as the widget does (single precision).
QPointF keyAt(int x, int y)
{
    return QPointF(double(float(x - kLeft) / float(kRight - kLeft)),
                   double(float(kBottom - y) / float(kBottom - kTop)));
}

// The report of a selected key's weight, in percent.
QString selChanged(QPointF key)
{
    return QStringLiteral("SelKeyValueChanged %1").arg(float(key.y() * 100));
}

QMimeData *mime(const char *format, const QString *text = nullptr)
{
    auto *data = new QMimeData;
    data->setData(QLatin1String(format), QByteArray());
    if (text)
        data->setText(*text);
    return data;
}

int darkPixels(const QImage &image, QRect area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            count += qRed(pixel) < 100 && qGreen(pixel) < 100 && qBlue(pixel) < 100;
        }
    return count;
}

int countColor(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += (image.pixel(x, y) & 0xFFFFFF) == (color.rgb() & 0xFFFFFF);
    return count;
}

} // namespace

class tst_QVisemeCurveWidgetLite : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void signalsInOrder();
    void initColours();
    void slotData();
    void endPoints_data();
    void endPoints();
    void pressAddsKeyThatDragsAndSortsOnRelease();
    void pressAddsOnlyWhenAllowed_data();
    void pressAddsOnlyWhenAllowed();
    void singlePhonemeAddsAtLeftEdge();
    void pressNearEdgeSelectsKey();
    void dragIsClampedToArea();
    void dragNeedsTheLeftButtonAlone();
    void rightPressDeletesKey_data();
    void rightPressDeletesKey();
    void releaseNeedsSlotInUse();
    void selectedKeyValue();
    void dropListItemClaimsSlot();
    void dropsThatChangeNothing_data();
    void dropsThatChangeNothing();
    void dropButtonFreesCurrentSlot_data();
    void dropButtonFreesCurrentSlot();
    void paintsEveryNamedSlot();
    void weightLabelStaysInside_data();
    void weightLabelStaysInside();
    void beforeInitAndTimeCursor();

private:
    CVisemeUIData &slot(int index) { return m_widget->GetVisemeUIData()[index]; }
    // Names slot index, makes it current and gives it keys.
    void useSlot(int index, const QString &name, const Keys &keys);

    std::unique_ptr<QWidget> m_host;
    QVisemeCurveWidgetLite *m_widget = nullptr;
    QList<QToolButton *> m_buttons;
    QStringList m_log;
};

void tst_QVisemeCurveWidgetLite::init()
{
    m_host.reset(new QWidget);
    m_widget = new QVisemeCurveWidgetLite(m_host.get());
    m_widget->setGeometry(0, 0, 400, 250);
    m_buttons.clear();
    for (int i = 0; i < 12; ++i) {
        auto *button = new QToolButton(m_widget);
        button->setCheckable(true);
        button->setGeometry(336, 10 + 18 * i, 60, 16);
        m_buttons.append(button);
    }
    m_widget->Init();
    m_log.clear();
    connect(m_widget, &QVisemeCurveWidgetLite::ClearKeys, this,
            [this] { m_log << QStringLiteral("ClearKeys"); });
    connect(m_widget, &QVisemeCurveWidgetLite::ApplyVisemeData, this,
            [this] { m_log << QStringLiteral("ApplyVisemeData"); });
    connect(m_widget, &QVisemeCurveWidgetLite::SelKeyValueChanged, this,
            [this](float value) { m_log << QStringLiteral("SelKeyValueChanged %1").arg(value); });
}

void tst_QVisemeCurveWidgetLite::cleanup()
{
    m_host.reset();
    m_widget = nullptr;
}

void tst_QVisemeCurveWidgetLite::useSlot(int index, const QString &name, const Keys &keys)
{
    m_widget->AddVisemeData(index, name);
    slot(index).m_lstKeys = keys;
    m_widget->SetCurrentCheckButtonIndex(index);
}

void tst_QVisemeCurveWidgetLite::signalsInOrder()
{
    const QMetaObject &meta = QVisemeCurveWidgetLite::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(methods,
             QStringList({ "ApplyVisemeData()", "ClearKeys()", "SelKeyValueChanged(float)" }));
}

void tst_QVisemeCurveWidgetLite::initColours()
{
    const QColor colours[] = { { 143, 0, 0 },    { 31, 31, 111 }, { 47, 111, 47 }, { 255, 95, 255 },
                               { 255, 143, 47 }, { 10, 95, 170 }, { 255, 250, 0 }, { 129, 1, 255 },
                               { 81, 100, 100 }, { 0, 0, 0 },     { 0, 0, 0 },     { 0, 0, 0 } };
    for (int i = 0; i < 12; ++i)
        QCOMPARE(slot(i).m_kColor, colours[i]);
}

void tst_QVisemeCurveWidgetLite::slotData()
{
    useSlot(4, QStringLiteral("OH"), { QPointF(0, 0.5) });
    m_widget->AddVisemeData(4, QStringLiteral("EE"));
    QVERIFY(slot(4).m_lstKeys.isEmpty());
    QCOMPARE(m_widget->GetVisemeName(4), QStringLiteral("EE"));
    QVERIFY(m_log.isEmpty());

    // Indices outside the twelve slots change nothing.
    m_widget->SetVisemeData(12, slot(4));
    m_widget->AddVisemeData(-1, QStringLiteral("X"));
    QVERIFY(m_widget->GetVisemeName(12).isEmpty());
    m_widget->SetCurrentCheckButtonIndex(40);
    QCOMPARE(m_widget->GetSelPtValue(), 0.0f);
    m_widget->SetSelKeyValue(50);
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    QVERIFY(!m_widget->grab().isNull());
}

void tst_QVisemeCurveWidgetLite::endPoints_data()
{
    QTest::addColumn<bool>("single");
    QTest::addColumn<Keys>("expected");
    QTest::newRow("span") << false << Keys({ QPointF(0, 0), QPointF(1, 0) });
    QTest::newRow("single phoneme") << true << Keys({ QPointF(0, 0) });
}

void tst_QVisemeCurveWidgetLite::endPoints()
{
    QFETCH(bool, single);
    QFETCH(Keys, expected);
    m_widget->SetSinglePhonemeState(single);
    useSlot(3, QStringLiteral("AA"), { QPointF(0.5, 0.5) });
    m_widget->AddVisemeCurveEndPoints();
    QCOMPARE(slot(3).m_lstKeys, Keys({ QPointF(0.5, 0.5) }));
    for (int i : { 0, 2, 4, 11 })
        QCOMPARE(slot(i).m_lstKeys, expected);
}

void tst_QVisemeCurveWidgetLite::pressAddsKeyThatDragsAndSortsOnRelease()
{
    useSlot(1, QStringLiteral("EE"), { QPointF(0, 0), QPointF(0.5, 0.25), QPointF(1, 0) });
    QTest::mousePress(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(88, 126));
    const QPointF added = keyAt(88, 126);
    QCOMPARE(slot(1).m_lstKeys, Keys({ QPointF(0, 0), added, QPointF(0.5, 0.25), QPointF(1, 0) }));
    QCOMPARE(slot(1).m_nSelectedKey, 1);
    QCOMPARE(m_widget->GetSelPtValue(), float(added.y() * 100));

    // Dragged past its neighbour: not re-sorted until the release, which leaves the selection.
    VelaTest::mouseMove(m_widget, QPoint(250, 60));
    const QPointF moved = keyAt(250, 60);
    QCOMPARE(slot(1).m_lstKeys, Keys({ QPointF(0, 0), moved, QPointF(0.5, 0.25), QPointF(1, 0) }));
    QTest::mouseRelease(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(250, 60));
    QCOMPARE(slot(1).m_lstKeys, Keys({ QPointF(0, 0), QPointF(0.5, 0.25), moved, QPointF(1, 0) }));
    QCOMPARE(slot(1).m_nSelectedKey, 1);
    QCOMPARE(m_log, QStringList({ selChanged(added), selChanged(moved) }) + kApplied);
}

void tst_QVisemeCurveWidgetLite::pressAddsOnlyWhenAllowed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("pos");
    QTest::newRow("unnamed slot") << QString() << int(Qt::LeftButton) << QPoint(100, 100);
    QTest::newRow("right button") << QStringLiteral("AA") << int(Qt::RightButton)
                                  << QPoint(100, 100);
    QTest::newRow("middle button")
        << QStringLiteral("AA") << int(Qt::MiddleButton) << QPoint(100, 100);
    QTest::newRow("margin left") << QStringLiteral("AA") << int(Qt::LeftButton)
                                 << QPoint(kLeft - 3, 100);
    QTest::newRow("margin top") << QStringLiteral("AA") << int(Qt::LeftButton)
                                << QPoint(100, kTop - 1);
    // The right edge leaves room for the first button plus 28 pixels.
    QTest::newRow("margin right") << QStringLiteral("AA") << int(Qt::LeftButton)
                                  << QPoint(kRight + 1, 100);
}

void tst_QVisemeCurveWidgetLite::pressAddsOnlyWhenAllowed()
{
    QFETCH(QString, name);
    QFETCH(int, button);
    QFETCH(QPoint, pos);
    useSlot(0, name, {});
    QTest::mousePress(m_widget, Qt::MouseButton(button), Qt::NoModifier, pos);
    QVERIFY(slot(0).m_lstKeys.isEmpty());
    QVERIFY(m_log.isEmpty());
    QTest::mouseRelease(m_widget, Qt::MouseButton(button), Qt::NoModifier, pos);
}

void tst_QVisemeCurveWidgetLite::singlePhonemeAddsAtLeftEdge()
{
    m_widget->SetSinglePhonemeState(true);
    useSlot(0, QStringLiteral("AA"), {});
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(kLeft + 4, 100));
    QVERIFY(slot(0).m_lstKeys.isEmpty());
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(kLeft + 3, 100));
    QCOMPARE(slot(0).m_lstKeys, Keys({ keyAt(kLeft, 100) }));
    QCOMPARE(slot(0).m_nSelectedKey, 0);

    // Dragging keeps the key's time.
    QTest::mousePress(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(kLeft, 100));
    VelaTest::mouseMove(m_widget, QPoint(200, 60));
    QCOMPARE(slot(0).m_lstKeys, Keys({ keyAt(kLeft, 60) }));
    QTest::mouseRelease(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(200, 60));
}

void tst_QVisemeCurveWidgetLite::pressNearEdgeSelectsKey()
{
    // Keys on the edges are reachable from just outside the area.
    useSlot(0, QStringLiteral("AA"), { QPointF(0, 0), QPointF(1, 0.5) });
    slot(0).m_nSelectedKey = 0;
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier,
                      pixelOf(QPointF(1, 0.5)) + QPoint(3, 0));
    QCOMPARE(slot(0).m_nSelectedKey, 1);
    QCOMPARE(slot(0).m_lstKeys.size(), 2);
    QCOMPARE(m_log.first(), QStringLiteral("SelKeyValueChanged 50"));
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(kLeft - 2, kBottom + 2));
    QCOMPARE(slot(0).m_nSelectedKey, 0);
}

void tst_QVisemeCurveWidgetLite::dragIsClampedToArea()
{
    useSlot(0, QStringLiteral("AA"), { QPointF(0, 0), QPointF(0.5, 0.5), QPointF(1, 0.25) });
    QTest::mousePress(m_widget, Qt::LeftButton, Qt::NoModifier, pixelOf(QPointF(0.5, 0.5)));
    VelaTest::mouseMove(m_widget, QPoint(1000, -50));
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(1, 1));
    VelaTest::mouseMove(m_widget, QPoint(-1000, 900));
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(0, 0));
    QTest::mouseRelease(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(-1000, 900));
    // Released on the time of the first key with the same weight: both stay.
    QCOMPARE(slot(0).m_lstKeys, Keys({ QPointF(0, 0), QPointF(0, 0), QPointF(1, 0.25) }));

    // Released on the time of the last key with another weight: it replaces that key.
    QTest::mousePress(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    VelaTest::mouseMove(m_widget, QPoint(kRight + 40, 100));
    QTest::mouseRelease(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(kRight + 40, 100));
    QCOMPARE(slot(0).m_lstKeys, Keys({ QPointF(0, 0), keyAt(kRight, 100) }));
    QCOMPARE(m_log.mid(m_log.size() - 2), kApplied);
}

void tst_QVisemeCurveWidgetLite::dragNeedsTheLeftButtonAlone()
{
    useSlot(0, QStringLiteral("AA"), { QPointF(0, 0), QPointF(0.5, 0.5), QPointF(1, 0) });
    slot(0).m_nSelectedKey = 1;
    VelaTest::mouseMove(m_widget, QPoint(100, 200), Qt::RightButton);
    VelaTest::mouseMove(m_widget, QPoint(100, 200), Qt::LeftButton | Qt::MiddleButton);
    VelaTest::mouseMove(m_widget, QPoint(100, 200), Qt::NoButton);
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(0.5, 0.5));
    QVERIFY(m_log.isEmpty());

    // The selection outlives the release, so a drag from anywhere moves the last selected key.
    QTest::mousePress(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    VelaTest::mouseMove(m_widget, QPoint(100, 200));
    QCOMPARE(slot(0).m_lstKeys.at(1), keyAt(100, 200));
    QTest::mouseRelease(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(100, 200));

    // A free slot keeps its keys.
    slot(0).m_bInUse = false;
    VelaTest::mouseMove(m_widget, QPoint(200, 100));
    QCOMPARE(slot(0).m_lstKeys.at(1), keyAt(100, 200));
}

void tst_QVisemeCurveWidgetLite::rightPressDeletesKey_data()
{
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("selectedAfter");
    const Keys four = { QPointF(0, 0.1), QPointF(0.3, 0.2), QPointF(0.6, 0.3), QPointF(1, 0.4) };
    QTest::newRow("first") << four << 0 << 0;
    QTest::newRow("second") << four << 1 << 0;
    QTest::newRow("third") << four << 2 << 1;
    QTest::newRow("the only one") << Keys({ QPointF(0.5, 0.5) }) << 0 << 0;
}

void tst_QVisemeCurveWidgetLite::rightPressDeletesKey()
{
    QFETCH(Keys, keys);
    QFETCH(int, index);
    QFETCH(int, selectedAfter);
    useSlot(0, QStringLiteral("AA"), keys);
    const QPoint pos = pixelOf(keys.at(index));
    QTest::mousePress(m_widget, Qt::RightButton, Qt::NoModifier, pos);
    const QPointF hit = keys.takeAt(index);
    QCOMPARE(slot(0).m_lstKeys, keys);
    QCOMPARE(slot(0).m_nSelectedKey, selectedAfter);
    QStringList expected(selChanged(hit));
    if (!keys.isEmpty())
        expected << selChanged(keys.at(selectedAfter));
    QCOMPARE(m_log, expected);
    QCOMPARE(m_widget->GetSelPtValue(),
             keys.isEmpty() ? 0.0f : float(keys.at(selectedAfter).y() * 100));
    // The release that follows still reports the slot.
    QTest::mouseRelease(m_widget, Qt::RightButton, Qt::NoModifier, pos);
    QCOMPARE(m_log.mid(expected.size()), kApplied);
}

void tst_QVisemeCurveWidgetLite::releaseNeedsSlotInUse()
{
    CVisemeUIData data;
    data.m_lstKeys = { QPointF(0, 0), QPointF(1, 0) };
    data.m_strName = QStringLiteral("AA");
    m_widget->SetVisemeData(0, data);
    // A named slot takes new keys even while free, but a free slot neither selects nor reports.
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    QCOMPARE(slot(0).m_lstKeys.size(), 3);
    QCOMPARE(slot(0).m_nSelectedKey, 0);
    QVERIFY(m_log.isEmpty());

    // A selection past the end still reports, and deletes nothing.
    slot(0).m_bInUse = true;
    slot(0).m_nSelectedKey = 5;
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(m_log, kApplied);
    QCOMPARE(slot(0).m_lstKeys.size(), 3);
}

void tst_QVisemeCurveWidgetLite::selectedKeyValue()
{
    useSlot(0, QStringLiteral("AA"), { QPointF(0, 0), QPointF(0.5, 0.375) });
    slot(0).m_nSelectedKey = 1;
    QCOMPARE(m_widget->GetSelPtValue(), 37.5f);
    m_widget->SetSelKeyValue(250);
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(0.5, 2.5));
    slot(0).m_nSelectedKey = 2;
    QCOMPARE(m_widget->GetSelPtValue(), 0.0f);
    m_widget->SetSelKeyValue(10);
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(0.5, 2.5));
    QVERIFY(m_log.isEmpty());
    // Keys far outside the area still paint.
    QVERIFY(!m_widget->grab().isNull());
}

void tst_QVisemeCurveWidgetLite::dropListItemClaimsSlot()
{
    useSlot(0, QStringLiteral("AA"), { QPointF(0, 0), QPointF(1, 0.5) });
    m_buttons.at(0)->setText(QStringLiteral("AA"));
    m_buttons.at(0)->setChecked(true);

    const QString name = QStringLiteral("EE");
    std::unique_ptr<QMimeData> data(mime(kListItemFormat, &name));
    QVERIFY(VelaTest::dropAt(m_widget, m_buttons.at(2)->geometry().center(), data.get()));
    QCOMPARE(m_buttons.at(2)->text(), name);
    QVERIFY(m_buttons.at(2)->isChecked());
    QCOMPARE(slot(2).m_strName, name);
    QVERIFY(slot(2).m_bInUse);
    // Every slot without keys now has its end keys; slot 0 keeps its own.
    QCOMPARE(slot(2).m_lstKeys, Keys({ QPointF(0, 0), QPointF(1, 0) }));
    QCOMPARE(slot(7).m_lstKeys, Keys({ QPointF(0, 0), QPointF(1, 0) }));
    QCOMPARE(slot(0).m_lstKeys, Keys({ QPointF(0, 0), QPointF(1, 0.5) }));
    QCOMPARE(m_log, kApplied);

    // Slot 2 is now the current one: a press adds its key there.
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    QCOMPARE(slot(2).m_lstKeys.size(), 3);
    QCOMPARE(slot(0).m_lstKeys.size(), 2);
}

void tst_QVisemeCurveWidgetLite::dropButtonFreesCurrentSlot_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("otherNamed");
    QTest::addColumn<int>("expectedChecked");
    QTest::newRow("checked, another named") << true << true << 5;
    QTest::newRow("checked, none named") << true << false << 0;
    QTest::newRow("not checked") << false << true << -1;
}

void tst_QVisemeCurveWidgetLite::dropButtonFreesCurrentSlot()
{
    QFETCH(bool, checked);
    QFETCH(bool, otherNamed);
    QFETCH(int, expectedChecked);
    if (otherNamed) {
        useSlot(5, QStringLiteral("OO"), { QPointF(0, 0) });
        m_buttons.at(5)->setText(QStringLiteral("OO"));
    }
    useSlot(3, QStringLiteral("FV"), { QPointF(0, 0), QPointF(1, 0) });
    m_buttons.at(3)->setText(QStringLiteral("FV"));
    m_buttons.at(3)->setChecked(checked);

    // The button drag carries no text: the slot comes from the widget's own state.
    std::unique_ptr<QMimeData> data(mime(kButtonFormat));
    QVERIFY(VelaTest::dropAt(m_widget, QPoint(120, 120), data.get()));
    QVERIFY(m_buttons.at(3)->text().isEmpty());
    QVERIFY(slot(3).m_strName.isEmpty());
    QVERIFY(slot(3).m_lstKeys.isEmpty());
    QVERIFY(!slot(3).m_bInUse);
    QCOMPARE(m_log, kApplied);
    for (int i = 0; i < 12; ++i) {
        if (i != 3)
            QCOMPARE(m_buttons.at(i)->isChecked(), i == expectedChecked);
    }

    // The new current slot receives the next key.
    const int current = expectedChecked >= 0 ? expectedChecked : 3;
    m_widget->AddVisemeData(current, QStringLiteral("XX"));
    QTest::mouseClick(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    QCOMPARE(slot(current).m_lstKeys.size(), 1);
}

void tst_QVisemeCurveWidgetLite::dropsThatChangeNothing_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text"); // none when null
    QTest::addColumn<int>("button");
    const QString item(kListItemFormat), button(kButtonFormat);
    QTest::newRow("list item shown already") << item << QStringLiteral("FV") << 4;
    // Free buttons show no text, so a nameless viseme counts as shown already.
    QTest::newRow("list item without text") << item << QString() << 1;
    QTest::newRow("button onto a button") << button << QStringLiteral("ignored") << 8;
    QTest::newRow("other data") << QString() << QStringLiteral("EE") << 2;
}

void tst_QVisemeCurveWidgetLite::dropsThatChangeNothing()
{
    QFETCH(QString, format);
    QFETCH(QString, text);
    QFETCH(int, button);
    useSlot(3, QStringLiteral("FV"), { QPointF(0, 0) });
    m_buttons.at(3)->setText(QStringLiteral("FV"));
    QMimeData data;
    if (!format.isEmpty())
        data.setData(format, QByteArray());
    if (!text.isNull())
        data.setText(text);
    const bool accepted =
        VelaTest::dropAt(m_widget, m_buttons.at(button)->geometry().center(), &data);
    QVERIFY(accepted || format == QLatin1String(kButtonFormat));
    QVERIFY(m_buttons.at(button)->text().isEmpty());
    QVERIFY(!m_buttons.at(button)->isChecked());
    QVERIFY(!slot(button).m_bInUse);
    QVERIFY(slot(button).m_lstKeys.isEmpty());
    QCOMPARE(m_buttons.at(3)->text(), QStringLiteral("FV"));
    QCOMPARE(slot(3).m_strName, QStringLiteral("FV"));
    QCOMPARE(slot(3).m_lstKeys.size(), 1);
    QVERIFY(m_log.isEmpty());
}

void tst_QVisemeCurveWidgetLite::paintsEveryNamedSlot()
{
    // Nine coloured slots of a thousand keys each, as a long lip-sync span has them.
    for (int i = 0; i < 9; ++i) {
        CVisemeUIData &data = slot(i);
        data.m_strName = QStringLiteral("V%1").arg(i);
        data.m_bInUse = true;
        for (int k = 0; k < 1000; ++k)
            data.m_lstKeys.append(QPointF(k / 999.0, 0.5 + 0.4 * std::sin(k / 40.0 + i * 0.5)));
    }
    m_widget->SetCurrentCheckButtonIndex(4);
    m_widget->SetShowWeightingAtPoint(false);
    const QImage image = m_widget->grab().toImage();
    // The current slot's curve lies under its markers; every other curve shows.
    for (int i = 0; i < 9; ++i)
        QCOMPARE(countColor(image, slot(i).m_kColor) > 0, i != 4);

    // A free or nameless slot is not drawn.
    slot(7).m_bInUse = false;
    slot(3).m_strName.clear();
    const QImage fewer = m_widget->grab().toImage();
    QCOMPARE(countColor(fewer, slot(7).m_kColor), 0);
    QCOMPARE(countColor(fewer, slot(3).m_kColor), 0);
}

void tst_QVisemeCurveWidgetLite::weightLabelStaysInside_data()
{
    QTest::addColumn<double>("weight");
    QTest::addColumn<bool>("leftSide");
    QTest::newRow("weight 0 at the end") << 0.0 << false;
    QTest::newRow("weight 0.5 at the end") << 0.5 << true;
}

void tst_QVisemeCurveWidgetLite::weightLabelStaysInside()
{
    QFETCH(double, weight);
    QFETCH(bool, leftSide);
    QVisemeCurveWidgetLite bare;
    bare.resize(300, 200);
    bare.Init();
    CVisemeUIData data;
    data.m_strName = QStringLiteral("AA");
    data.m_bInUse = true;
    data.m_nSelectedKey = -1;
    data.m_kColor = QColor(143, 0, 0);
    data.m_lstKeys = { QPointF(0, weight), QPointF(1, weight) };
    bare.SetVisemeData(0, data);

    // Key (1, weight) of a 300 × 200 widget without buttons lies at (271, 187 - 172 × weight).
    const QPoint key(271, int(187 - 172 * weight));
    const QRect right(key.x() + 9, key.y() - 8, 18, 8);
    const QRect left(key.x() - 27, key.y() - 8, 18, 8);
    QImage image = bare.grab().toImage();
    QCOMPARE(darkPixels(image, leftSide ? right : left), 0);
    QVERIFY(darkPixels(image, leftSide ? left : right) > 0);

    bare.SetShowWeightingAtPoint(false);
    image = bare.grab().toImage();
    QCOMPARE(darkPixels(image, left) + darkPixels(image, right), 0);
}

void tst_QVisemeCurveWidgetLite::beforeInitAndTimeCursor()
{
    QVisemeCurveWidgetLite bare;
    bare.resize(300, 200);
    // Before Init nothing is drawn and presses do nothing.
    bare.AddVisemeData(0, QStringLiteral("AA"));
    QTest::mouseClick(&bare, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    QVERIFY(bare.GetVisemeUIData()[0].m_lstKeys.isEmpty());
    QVERIFY(!bare.grab().isNull());

    bare.Init();
    // No length yet: no cursor, and no trouble.
    QImage image = bare.grab().toImage();
    QCOMPARE(darkPixels(image, QRect(20, 100, 240, 1)), 0);

    // Half of the span: (271 - 15 + 1) / 2 + 15 = 143.5.
    bare.SetTimeLength(2.0f, 4.0f);
    image = bare.grab().toImage();
    const int dark = darkPixels(image, QRect(143, 100, 2, 1));
    QCOMPARE(dark, 1);
    QCOMPARE(darkPixels(image, QRect(20, 100, 240, 1)), 1);
}

VELA_TEST_CLASS(tst_QVisemeCurveWidgetLite)
#include "tst_QVisemeCurveWidgetLite.moc"
