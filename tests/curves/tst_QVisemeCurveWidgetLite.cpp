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
const QString kButtonFormat = QStringLiteral("application/x-visemebutton");
const QString kListItemFormat = QStringLiteral("application/x-visemelistitem");
const Keys kEnds = { QPointF(0, 0), QPointF(1, 0) };

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

// Pixels of area in exactly colour, or dark ones (every channel below 100) without a colour.
int countPixels(const QImage &image, QRect area, const QColor &colour = QColor())
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            count += colour.isValid()
                ? (pixel & 0xFFFFFF) == (colour.rgb() & 0xFFFFFF)
                : qRed(pixel) < 100 && qGreen(pixel) < 100 && qBlue(pixel) < 100;
        }
    return count;
}

} // namespace

class tst_QVisemeCurveWidgetLite : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void signalsInOrder();
    void initColoursAndSlotData();
    void endPoints();
    void pressAddsKeyThatDragsAndSortsOnRelease();
    void pressAddsOnlyWhenAllowed_data();
    void pressAddsOnlyWhenAllowed();
    void singlePhoneme();
    void selectedKey();
    void dragAndRelease();
    void rightPressDeletesKey_data();
    void rightPressDeletesKey();
    void dropListItemClaimsSlot();
    void dropsThatChangeNothing_data();
    void dropsThatChangeNothing();
    void dropButtonFreesCurrentSlot_data();
    void dropButtonFreesCurrentSlot();
    void paintsEveryNamedSlot();
    void bareWidgetLabelsAndTimeCursor();

private:
    CVisemeUIData &slot(int index) { return m_widget->GetVisemeUIData()[index]; }
    // Names slot index and its button, makes it current and gives it keys.
    void useSlot(int index, const QString &name, const Keys &keys);
    // Slot index as "<button text>/<name>/<in use>/<key count>".
    QString state(int index)
    {
        return QStringLiteral("%1/%2/%3/%4")
            .arg(m_buttons.at(index)->text(), slot(index).m_strName)
            .arg(slot(index).m_bInUse)
            .arg(slot(index).m_lstKeys.size());
    }
    void click(QPoint pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(m_widget, button, Qt::NoModifier, pos);
    }
    void drag(QPoint from, QPoint to)
    {
        QTest::mousePress(m_widget, Qt::LeftButton, Qt::NoModifier, from);
        VelaTest::mouseMove(m_widget, to);
        QTest::mouseRelease(m_widget, Qt::LeftButton, Qt::NoModifier, to);
    }

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
    connect(m_widget, &QVisemeCurveWidgetLite::ClearKeys, this, [this] { m_log << "ClearKeys"; });
    connect(m_widget, &QVisemeCurveWidgetLite::ApplyVisemeData, this,
            [this] { m_log << "ApplyVisemeData"; });
    connect(m_widget, &QVisemeCurveWidgetLite::SelKeyValueChanged, this,
            [this](float value) { m_log << QStringLiteral("SelKeyValueChanged %1").arg(value); });
}

void tst_QVisemeCurveWidgetLite::useSlot(int index, const QString &name, const Keys &keys)
{
    m_widget->AddVisemeData(index, name);
    m_buttons.at(index)->setText(name);
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

void tst_QVisemeCurveWidgetLite::initColoursAndSlotData()
{
    const QColor colours[] = { { 143, 0, 0 },    { 31, 31, 111 }, { 47, 111, 47 }, { 255, 95, 255 },
                               { 255, 143, 47 }, { 10, 95, 170 }, { 255, 250, 0 }, { 129, 1, 255 },
                               { 81, 100, 100 }, { 0, 0, 0 },     { 0, 0, 0 },     { 0, 0, 0 } };
    for (int i = 0; i < 12; ++i)
        QCOMPARE(slot(i).m_kColor, colours[i]);

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
    click(QPoint(100, 100));
}

void tst_QVisemeCurveWidgetLite::endPoints()
{
    // Every slot without keys gets both end keys; one with keys keeps its own.
    useSlot(3, QStringLiteral("AA"), { QPointF(0.5, 0.5) });
    m_widget->AddVisemeCurveEndPoints();
    QCOMPARE(slot(3).m_lstKeys, Keys({ QPointF(0.5, 0.5) }));
    for (int i : { 0, 4, 11 })
        QCOMPARE(slot(i).m_lstKeys, kEnds);
}

void tst_QVisemeCurveWidgetLite::pressAddsKeyThatDragsAndSortsOnRelease()
{
    useSlot(1, QStringLiteral("EE"), { QPointF(0, 0), QPointF(0.5, 0.25), QPointF(1, 0) });
    QTest::mousePress(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(88, 126));
    const QPointF added = keyAt(88, 126);
    QCOMPARE(slot(1).m_lstKeys, Keys({ QPointF(0, 0), added, QPointF(0.5, 0.25), QPointF(1, 0) }));
    QCOMPARE(slot(1).m_nSelectedKey, 1);

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
    const auto row = [](const char *tag, const char *name, Qt::MouseButton button, QPoint pos) {
        QTest::newRow(tag) << QString::fromLatin1(name) << int(button) << pos;
    };
    row("unnamed slot", "", Qt::LeftButton, QPoint(100, 100));
    row("right button", "AA", Qt::RightButton, QPoint(100, 100));
    row("margin left", "AA", Qt::LeftButton, QPoint(kLeft - 3, 100));
    // The right edge leaves room for the first button plus 28 pixels.
    row("margin right", "AA", Qt::LeftButton, QPoint(kRight + 1, 100));
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
}

void tst_QVisemeCurveWidgetLite::singlePhoneme()
{
    // Empty slots get their start key only.
    m_widget->SetSinglePhonemeState(true);
    m_widget->AddVisemeCurveEndPoints();
    QCOMPARE(slot(2).m_lstKeys, Keys({ QPointF(0, 0) }));

    // Keys are added only at the left edge.
    useSlot(0, QStringLiteral("AA"), {});
    click(QPoint(kLeft + 4, 100));
    QVERIFY(slot(0).m_lstKeys.isEmpty());
    click(QPoint(kLeft + 3, 100));
    QCOMPARE(slot(0).m_lstKeys, Keys({ keyAt(kLeft, 100) }));
    QCOMPARE(slot(0).m_nSelectedKey, 0);

    // Dragging keeps the key's time.
    drag(QPoint(kLeft, 100), QPoint(200, 60));
    QCOMPARE(slot(0).m_lstKeys, Keys({ keyAt(kLeft, 60) }));
}

void tst_QVisemeCurveWidgetLite::selectedKey()
{
    // Keys on the edges are reachable from just outside the area.
    useSlot(0, QStringLiteral("AA"), { QPointF(0, 0), QPointF(1, 0.375) });
    click(pixelOf(QPointF(1, 0.375)) + QPoint(3, 0));
    QCOMPARE(slot(0).m_nSelectedKey, 1);
    QCOMPARE(slot(0).m_lstKeys.size(), 2);
    QCOMPARE(m_log, QStringList(QStringLiteral("SelKeyValueChanged 37.5")) + kApplied);
    QCOMPARE(m_widget->GetSelPtValue(), 37.5f);

    // Set as given, without a clamp or a signal; a selection past the end reads and sets nothing.
    m_log.clear();
    m_widget->SetSelKeyValue(250);
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(1, 2.5));
    slot(0).m_nSelectedKey = 2;
    QCOMPARE(m_widget->GetSelPtValue(), 0.0f);
    m_widget->SetSelKeyValue(10);
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(1, 2.5));
    QVERIFY(m_log.isEmpty());
}

void tst_QVisemeCurveWidgetLite::dragAndRelease()
{
    useSlot(0, QStringLiteral("AA"), { QPointF(0, 0), QPointF(0.5, 0.5), QPointF(1, 0.25) });
    slot(0).m_nSelectedKey = 1;
    // Only the left button alone drags.
    VelaTest::mouseMove(m_widget, QPoint(100, 200), Qt::LeftButton | Qt::MiddleButton);
    VelaTest::mouseMove(m_widget, QPoint(100, 200), Qt::NoButton);
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(0.5, 0.5));
    QVERIFY(m_log.isEmpty());

    // No press on the key is needed, and the drag is clamped to the area.
    VelaTest::mouseMove(m_widget, QPoint(1000, -50));
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(1, 1));
    VelaTest::mouseMove(m_widget, QPoint(-1000, 900));
    QCOMPARE(slot(0).m_lstKeys.at(1), QPointF(0, 0));
    QTest::mouseRelease(m_widget, Qt::LeftButton, Qt::NoModifier, QPoint(-1000, 900));
    // Released on the time of the first key with the same weight: both stay.
    QCOMPARE(slot(0).m_lstKeys, Keys({ QPointF(0, 0), QPointF(0, 0), QPointF(1, 0.25) }));

    // The selection outlives the release, so a drag from anywhere moves the last selected key.
    // Released on the time of the last key with another weight, it replaces that key.
    drag(QPoint(5, 5), QPoint(kRight + 40, 100));
    QCOMPARE(slot(0).m_lstKeys, Keys({ QPointF(0, 0), keyAt(kRight, 100) }));

    // A free slot keeps its keys when dragged; it still takes new keys while named, but neither
    // selects nor reports.
    slot(0).m_bInUse = false;
    m_log.clear();
    VelaTest::mouseMove(m_widget, QPoint(200, 200));
    QCOMPARE(slot(0).m_lstKeys.at(1), keyAt(kRight, 100));
    click(QPoint(150, 100));
    QCOMPARE(slot(0).m_lstKeys.size(), 3);
    QCOMPARE(slot(0).m_nSelectedKey, 1);
    QVERIFY(m_log.isEmpty());

    // A selection past the end still reports, and deletes nothing.
    slot(0).m_bInUse = true;
    slot(0).m_nSelectedKey = 5;
    click(QPoint(5, 5));
    QCOMPARE(m_log, kApplied);
    QCOMPARE(slot(0).m_lstKeys.size(), 3);
}

void tst_QVisemeCurveWidgetLite::rightPressDeletesKey_data()
{
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("selectedAfter");
    const Keys four = { QPointF(0, 0.1), QPointF(0.3, 0.2), QPointF(0.6, 0.3), QPointF(1, 0.4) };
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
    // The release that follows still reports the slot.
    QTest::mouseRelease(m_widget, Qt::RightButton, Qt::NoModifier, pos);
    QCOMPARE(m_log.mid(expected.size()), kApplied);
}

void tst_QVisemeCurveWidgetLite::dropListItemClaimsSlot()
{
    useSlot(0, QStringLiteral("AA"), { QPointF(0, 0), QPointF(1, 0.5) });
    m_buttons.at(0)->setChecked(true);

    QMimeData data;
    data.setData(kListItemFormat, QByteArray());
    data.setText(QStringLiteral("EE"));
    QVERIFY(VelaTest::dropAt(m_widget, m_buttons.at(2)->geometry().center(), &data));
    QCOMPARE(state(2), QStringLiteral("EE/EE/1/2"));
    QVERIFY(m_buttons.at(2)->isChecked());
    // Every slot without keys now has its end keys.
    QCOMPARE(slot(7).m_lstKeys, kEnds);
    QCOMPARE(m_log, kApplied);

    // Slot 2 is now the current one: a press adds its key there.
    click(QPoint(100, 100));
    QCOMPARE(slot(2).m_lstKeys.size(), 3);
}

void tst_QVisemeCurveWidgetLite::dropsThatChangeNothing_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text"); // none when null
    QTest::addColumn<int>("button");
    QTest::newRow("list item shown already") << kListItemFormat << QStringLiteral("FV") << 4;
    // Free buttons show no text, so a nameless viseme counts as shown already.
    QTest::newRow("list item without text") << kListItemFormat << QString() << 1;
    QTest::newRow("button onto a button") << kButtonFormat << QStringLiteral("ignored") << 8;
    QTest::newRow("other data") << QString() << QStringLiteral("EE") << 2;
}

void tst_QVisemeCurveWidgetLite::dropsThatChangeNothing()
{
    QFETCH(QString, format);
    QFETCH(QString, text);
    QFETCH(int, button);
    useSlot(3, QStringLiteral("FV"), { QPointF(0, 0) });
    QMimeData data;
    if (!format.isEmpty())
        data.setData(format, QByteArray());
    if (!text.isNull())
        data.setText(text);
    const bool accepted =
        VelaTest::dropAt(m_widget, m_buttons.at(button)->geometry().center(), &data);
    QVERIFY(accepted || format == kButtonFormat);
    QCOMPARE(state(button), QStringLiteral("//0/0"));
    QVERIFY(!m_buttons.at(button)->isChecked());
    QCOMPARE(state(3), QStringLiteral("FV/FV/1/1"));
    QVERIFY(m_log.isEmpty());
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
    if (otherNamed)
        useSlot(5, QStringLiteral("OO"), { QPointF(0, 0) });
    useSlot(3, QStringLiteral("FV"), kEnds);
    m_buttons.at(3)->setChecked(checked);

    // The button drag carries no text: the slot comes from the widget's own state.
    QMimeData data;
    data.setData(kButtonFormat, QByteArray());
    QVERIFY(VelaTest::dropAt(m_widget, QPoint(120, 120), &data));
    QCOMPARE(state(3), QStringLiteral("//0/0"));
    QCOMPARE(m_log, kApplied);
    for (int i = 0; i < 12; ++i) {
        if (i != 3)
            QCOMPARE(m_buttons.at(i)->isChecked(), i == expectedChecked);
    }

    // The new current slot receives the next key.
    const int current = expectedChecked >= 0 ? expectedChecked : 3;
    m_widget->AddVisemeData(current, QStringLiteral("XX"));
    click(QPoint(100, 100));
    QCOMPARE(slot(current).m_lstKeys.size(), 1);
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
        QCOMPARE(countPixels(image, image.rect(), slot(i).m_kColor) > 0, i != 4);

    // A free or nameless slot is not drawn.
    slot(7).m_bInUse = false;
    slot(3).m_strName.clear();
    const QImage fewer = m_widget->grab().toImage();
    QCOMPARE(countPixels(fewer, fewer.rect(), slot(7).m_kColor), 0);
    QCOMPARE(countPixels(fewer, fewer.rect(), slot(3).m_kColor), 0);
}

void tst_QVisemeCurveWidgetLite::bareWidgetLabelsAndTimeCursor()
{
    // A 300 × 200 widget without buttons: the area spans x 15..271 and y 15..187.
    QVisemeCurveWidgetLite bare;
    bare.resize(300, 200);
    // Before Init nothing is drawn and presses do nothing.
    bare.AddVisemeData(0, QStringLiteral("AA"));
    QTest::mouseClick(&bare, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    QVERIFY(bare.GetVisemeUIData()[0].m_lstKeys.isEmpty());
    QCOMPARE(countPixels(bare.grab().toImage(), bare.rect()), 0);

    bare.Init();
    // No length yet: no cursor, and no trouble.
    QCOMPARE(countPixels(bare.grab().toImage(), QRect(20, 100, 240, 1)), 0);
    // Half of the span: (271 - 15 + 1) / 2 + 15 = 143.5.
    bare.SetTimeLength(2.0f, 4.0f);
    QImage image = bare.grab().toImage();
    QCOMPARE(countPixels(image, QRect(143, 100, 2, 1)), 1);
    QCOMPARE(countPixels(image, QRect(20, 100, 240, 1)), 1);

    // The label of the end key (271, 187 - 172 × weight) stays on its right at weight 0 and moves
    // to its left at any other weight, to stay inside.
    CVisemeUIData data;
    data.m_strName = QStringLiteral("AA");
    data.m_bInUse = true;
    data.m_nSelectedKey = -1;
    data.m_kColor = QColor(143, 0, 0);
    for (double weight : { 0.0, 0.5 }) {
        data.m_lstKeys = { QPointF(0, weight), QPointF(1, weight) };
        bare.SetVisemeData(0, data);
        bare.SetShowWeightingAtPoint(true);
        const QPoint key(271, int(187 - 172 * weight));
        const QRect right(key.x() + 9, key.y() - 8, 18, 8);
        const QRect left(key.x() - 27, key.y() - 8, 18, 8);
        image = bare.grab().toImage();
        QCOMPARE(countPixels(image, weight == 0 ? left : right), 0);
        QVERIFY(countPixels(image, weight == 0 ? right : left) > 0);

        bare.SetShowWeightingAtPoint(false);
        image = bare.grab().toImage();
        QCOMPARE(countPixels(image, left) + countPixels(image, right), 0);
    }
}

VELA_TEST_CLASS(tst_QVisemeCurveWidgetLite)
#include "tst_QVisemeCurveWidgetLite.moc"
