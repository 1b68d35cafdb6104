#include "../composite/ComboEditorTestSupport.h"
#include "CKdFKModifyCellWidget.h"
#include "QComboSpinBox.h"
#include "QKdFKModifyTableManager.h"
#include "VelaTest.h"

#include <QFile>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QSlider>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>

namespace {

const QString kSampleIni = QStringLiteral(VELA_TEST_DATA_DIR "/facial/FacialKeys.ini");

// Reaches the table's protected readers and its outside-set flag, as a host subclass can.
class ProbeModifyTable : public QKdFKModifyTableManager
{
public:
    using QKdFKModifyTableManager::GetExtreme;
    using QKdFKModifyTableManager::GetSectionConvertExpMap;
    using QKdFKModifyTableManager::GetSectionModifyString;
    using QKdFKModifyTableManager::QKdFKModifyTableManager;

    bool focusNext() { return focusNextPrevChild(true); }
    bool focusPrevious() { return focusNextPrevChild(false); }
    void SetValuesFromOutside(bool bOutside) { m_bSetValueOutside = bOutside; }
};

// The parentless cells InitManager leaves behind, taken over (and freed) by the test, by id.
class MadeCells
{
public:
    MadeCells()
    {
        for (QWidget *pkWidget : QApplication::topLevelWidgets()) {
            if (CKdFKModifyCellWidget *pkCell = qobject_cast<CKdFKModifyCellWidget *>(pkWidget))
                m_kCells.append(pkCell);
        }
        std::sort(m_kCells.begin(), m_kCells.end(),
                  [](CKdFKModifyCellWidget *a, CKdFKModifyCellWidget *b) {
                      return a->GetID() < b->GetID();
                  });
    }
    ~MadeCells() { qDeleteAll(m_kCells); }

    int Count() const { return m_kCells.size(); }
    CKdFKModifyCellWidget *At(int nID) const { return m_kCells.value(nID); }
    const QVector<CKdFKModifyCellWidget *> &All() const { return m_kCells; }

private:
    QVector<CKdFKModifyCellWidget *> m_kCells;
};

// First cell id and channel count of each section, in section order.
struct SectionSpan
{
    int nFirstID;
    int nCount;
};
const SectionSpan kSpans[] = { { 0, 8 }, { 8, 7 }, { 15, 10 }, { 25, 39 }, { 64, 64 } };

QString WriteIni(const QTemporaryDir &kDir, const QByteArray &kContent)
{
    const QString strPath = kDir.filePath(QStringLiteral("facial.ini"));
    QFile kFile(strPath);
    if (kFile.open(QIODevice::WriteOnly))
        kFile.write(kContent);
    return strPath;
}

// A complete file in which every channel key is "<Section>_<index>" with one range for all.
QByteArray CompleteIni(const QByteArray &kSliderRange, const QByteArray &kSpinRange)
{
    const char *const kGroups[] = { "BrowModifyString", "EyeModifyString", "NoseModifyString",
                                    "MouthModifyString", "CustomModifyString" };
    QByteArray kSections;
    QByteArray kSlider("[SliderExtreme]\n");
    QByteArray kSpin("[SpinBoxExtreme]\n");
    for (int nSection = 0; nSection < 5; ++nSection) {
        kSections += QByteArray("[") + kGroups[nSection] + "]\n";
        for (int nIndex = 0; nIndex < kSpans[nSection].nCount; ++nIndex) {
            const QByteArray kKey = QByteArray("S") + QByteArray::number(nSection) + "_"
                + QByteArray::number(nIndex).rightJustified(2, '0');
            kSections += kKey + "=channel\n";
            kSlider += kKey + "=" + kSliderRange + "\n";
            kSpin += kKey + "=" + kSpinRange + "\n";
        }
    }
    return kSections + kSlider + kSpin;
}

// Slider minimum and maximum, then spin minimum and maximum.
QVector<int> RangesOf(CKdFKModifyCellWidget *pkCell)
{
    return { pkCell->GetMinimum(), pkCell->GetMaximum(), pkCell->GetSpinMinimum(),
             pkCell->GetSpinMaximum() };
}

// The table's cell signals in order, as "begin 3", "change 3", "stop 3", "rename 3".
class TableRecorder : public QObject
{
public:
    explicit TableRecorder(QKdFKModifyTableManager *pkTable)
    {
        connect(pkTable, &QKdFKModifyTableManager::BeginChangeCellSlider, this,
                [this](int nID) { kEvents << QStringLiteral("begin %1").arg(nID); });
        connect(pkTable, &QKdFKModifyTableManager::ChangeCellSlider, this,
                [this](int nID) { kEvents << QStringLiteral("change %1").arg(nID); });
        connect(pkTable, &QKdFKModifyTableManager::StopChangeCellSlider, this,
                [this](int nID) { kEvents << QStringLiteral("stop %1").arg(nID); });
        connect(pkTable, &QKdFKModifyTableManager::RenameCellSlider, this,
                [this](int nID) { kEvents << QStringLiteral("rename %1").arg(nID); });
        connect(
            pkTable, &QKdFKModifyTableManager::MouseEntered, this,
            [this](const QModelIndex &kIndex) {
                kEvents << QStringLiteral("entered %1,%2").arg(kIndex.row()).arg(kIndex.column());
            });
        connect(pkTable, &QKdFKModifyTableManager::MouseLeft, this,
                [this](const QModelIndex &kIndex) {
                    kEvents << QStringLiteral("left %1,%2").arg(kIndex.row()).arg(kIndex.column());
                });
    }

    QStringList kEvents;
};

// Connects a cell to the table's forwarders the way a host does.
void WireCell(CKdFKModifyCellWidget *pkCell, QKdFKModifyTableManager *pkTable)
{
    QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderEditStarted, pkTable,
                     [pkCell, pkTable] { pkTable->BeginEditSlider(pkCell); });
    QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderValueChanged, pkTable,
                     [pkCell, pkTable] { pkTable->UpdateSliderValues(pkCell); });
    QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderEditFinished, pkTable,
                     [pkCell, pkTable] { pkTable->StopEditSlider(pkCell); });
}

} // namespace

class tst_QKdFKModifyTableManager : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void expressionMaps_data();
    void expressionMaps();
    void sectionKeysFromSample();
    void extremes_data();
    void extremes();
    void initManagerWithSample();
    void initManagerSizesRows();
    void badIniFiles_data();
    void badIniFiles();
    void binaryGarbage();
    void nonAsciiKeys();
    void hostFileIsNeverWritten();
    void sliderDragReachesTable();
    void valuesFromOutsideSilenceEdits();
    void nullCellIsIgnored();
    void fixedAccessors();
    void hoverTracking();
    void tabStaysInTable();
};

void tst_QKdFKModifyTableManager::construction()
{
    QWidget kParent;
    ProbeModifyTable *pkTable = new ProbeModifyTable(&kParent);
    QCOMPARE(pkTable->parentWidget(), &kParent);
    QVERIFY(!pkTable->model());
    QVERIFY(pkTable->styleSheet().isEmpty());

    // The flag starts clear: edits are forwarded.
    TableRecorder kRecorder(pkTable);
    CKdFKModifyCellWidget kCell;
    pkTable->UpdateSliderValues(&kCell);
    QCOMPARE(kRecorder.kEvents, QStringList({ "change 0" }));
}

void tst_QKdFKModifyTableManager::expressionMaps_data()
{
    QTest::addColumn<int>("nSection");
    QTest::addColumn<int>("nEntries");
    QTest::addColumn<int>("nFirstId");

    QTest::newRow("brow") << int(ESection_Brow) << 8 << 0;
    QTest::newRow("eye") << int(ESection_Eye) << 7 << 8;
    QTest::newRow("nose") << int(ESection_Nose) << 10 << 15;
    QTest::newRow("mouth: 35 ids for 39 channels") << int(ESection_Mouth) << 35 << 25;
    QTest::newRow("custom") << int(ESection_Custom) << 64 << 64;
}

void tst_QKdFKModifyTableManager::expressionMaps()
{
    QFETCH(int, nSection);
    QFETCH(int, nEntries);
    QFETCH(int, nFirstId);

    ProbeModifyTable kTable;
    QKdFKModifyTableManager::ExpressionMap kMap;
    kMap[99] = 99; // replaced, not merged
    kTable.GetSectionConvertExpMap(ESection(nSection), kMap);
    QCOMPARE(int(kMap.size()), nEntries);
    for (int nIndex = 0; nIndex < nEntries; ++nIndex)
        QCOMPARE(kMap.at(nIndex), nFirstId + nIndex);

    // Outside the five sections the map is left alone.
    QKdFKModifyTableManager::ExpressionMap kUntouched;
    kUntouched[1] = 2;
    kTable.GetSectionConvertExpMap(ESection(5), kUntouched);
    kTable.GetSectionConvertExpMap(ESection(-1), kUntouched);
    QCOMPARE(int(kUntouched.size()), 1);
    QCOMPARE(kUntouched.at(1), 2);
}

void tst_QKdFKModifyTableManager::sectionKeysFromSample()
{
    ProbeModifyTable kTable;
    QString strKey = QStringLiteral("stale");
    QCOMPARE(kTable.GetSectionModifyString(kSampleIni, 0, 0, strKey), QString());
    QCOMPARE(strKey, QStringLiteral("Brow_00_InnerUp_L"));
    kTable.GetSectionModifyString(kSampleIni, 1, 6, strKey);
    QCOMPARE(strKey, QStringLiteral("Eye_06_LookUp"));
    kTable.GetSectionModifyString(kSampleIni, 3, 38, strKey);
    QCOMPARE(strKey, QStringLiteral("Mouth_38_Chew"));
    kTable.GetSectionModifyString(kSampleIni, 4, 63, strKey);
    QCOMPARE(strKey, QStringLiteral("Custom_63_Slot63"));

    // Past the keys of a group: no key.
    kTable.GetSectionModifyString(kSampleIni, 0, 8, strKey);
    QCOMPARE(strKey, QString());
    kTable.GetSectionModifyString(kSampleIni, 0, -1, strKey);
    QCOMPARE(strKey, QString());

    // A section outside 0..4 lists the whole file.
    kTable.GetSectionModifyString(kSampleIni, 9, 0, strKey);
    QCOMPARE(strKey, QStringLiteral("BrowModifyString/Brow_00_InnerUp_L"));
}

void tst_QKdFKModifyTableManager::extremes_data()
{
    QTest::addColumn<QByteArray>("kValue");
    QTest::addColumn<QVector<int>>("kExpected");

    QTest::newRow("pair") << QByteArray("0, 100") << QVector<int>({ 0, 100 });
    QTest::newRow("negative, spaced") << QByteArray(" -50 ,  150 ") << QVector<int>({ -50, 150 });
    QTest::newRow("text then number") << QByteArray("abc, 20") << QVector<int>({ 100, 20 });
    QTest::newRow("fraction") << QByteArray("2.5, 3") << QVector<int>({ 100, 3 });
    QTest::newRow("too large") << QByteArray("99999999999, 1") << QVector<int>({ 100, 1 });
    QTest::newRow("three elements") << QByteArray("1, 2, 3") << QVector<int>({ 1, 2, 3 });
    QTest::newRow("empty element") << QByteArray("5,") << QVector<int>({ 5, 100 });
    QTest::newRow("lone number") << QByteArray("5") << QVector<int>();
    QTest::newRow("empty value") << QByteArray("") << QVector<int>();
    QTest::newRow("quoted pair") << QByteArray("\"0, 100\"") << QVector<int>();
    QTest::newRow("@Variant int") << QByteArray("@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)")
                                  << QVector<int>();
    QTest::newRow("@Variant garbage") << QByteArray("@Variant(garbage)") << QVector<int>();
}

void tst_QKdFKModifyTableManager::extremes()
{
    QFETCH(QByteArray, kValue);
    QFETCH(QVector<int>, kExpected);

    if (kValue.startsWith("@Variant(garbage"))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("invalid type"));
    QTemporaryDir kDir;
    const QString strPath = WriteIni(kDir, "[SliderExtreme]\nSmile=" + kValue + "\nOther=1, 2\n");
    ProbeModifyTable kTable;
    const Vela::CArrayList<int> kExtreme =
        kTable.GetExtreme(strPath, QStringLiteral("SliderExtreme"), QStringLiteral("Smile"));
    QCOMPARE(QVector<int>(kExtreme.cbegin(), kExtreme.cend()), kExpected);

    QVERIFY(kTable.GetExtreme(strPath, QStringLiteral("SliderExtreme"), QStringLiteral("Missing"))
                .empty());
    QVERIFY(kTable.GetExtreme(strPath, QStringLiteral("SpinBoxExtreme"), QStringLiteral("Smile"))
                .empty());
    QVERIFY(kTable.GetExtreme(strPath, QStringLiteral("SliderExtreme"), QString()).empty());
}

void tst_QKdFKModifyTableManager::initManagerWithSample()
{
    QKdFKModifyTableManager kTable;
    kTable.InitManager(kSampleIni);
    MadeCells kCells;

    QCOMPARE(kCells.Count(), 128);
    for (int nID = 0; nID < 128; ++nID) {
        CKdFKModifyCellWidget *pkCell = kCells.At(nID);
        QCOMPARE(pkCell->GetID(), nID);
        QVERIFY(!pkCell->parentWidget());
        QVERIFY(pkCell->isHidden());
        QCOMPARE(pkCell->GetValue(), 0);
        // The label text InitManager writes is the key reader's empty result.
        QCOMPARE(pkCell->GetSlider()->text(), QString());
        QVERIFY(!pkCell->IsEditing());
    }

    // Every channel of a section has its section's ranges from the sample file.
    const QVector<int> kExpected[] = { { 0, 100, -50, 150 },
                                       { 0, 100, 0, 100 },
                                       { 0, 100, -100, 200 },
                                       { -20, 100, -50, 150 },
                                       { -100, 100, -200, 200 } };
    for (int nSection = 0; nSection < 5; ++nSection) {
        for (int nIndex = 0; nIndex < kSpans[nSection].nCount; ++nIndex)
            QCOMPARE(RangesOf(kCells.At(kSpans[nSection].nFirstID + nIndex)), kExpected[nSection]);
    }
}

void tst_QKdFKModifyTableManager::initManagerSizesRows()
{
    QKdFKModifyTableManager kTable;
    QStandardItemModel kModel(130, 2);
    kTable.setModel(&kModel);
    const int nDefaultHeight = kTable.rowHeight(129);
    kTable.InitManager(kSampleIni);
    MadeCells kCells;

    QCOMPARE(kTable.columnWidth(0), 370);
    for (int nRow = 0; nRow < 128; ++nRow)
        QCOMPARE(kTable.rowHeight(nRow), 70);
    QCOMPARE(kTable.rowHeight(128), nDefaultHeight);
    QCOMPARE(kTable.rowHeight(129), nDefaultHeight);
}

void tst_QKdFKModifyTableManager::badIniFiles_data()
{
    QTest::addColumn<QByteArray>("kContent"); // empty with bWrite false: no file at all
    QTest::addColumn<bool>("bWrite");
    QTest::addColumn<int>("nCheckedID");
    QTest::addColumn<QVector<int>>("kRanges"); // slider min, max, spin min, max
    QTest::addColumn<int>("nValue");

    const QVector<int> kDefault({ -50, 100, -50, 100 });
    const QVector<int> kFile({ 0, 60, -10, 90 });
    const QByteArray kComplete = CompleteIni("0, 60", "-10, 90");
    const auto row = [](const char *pcName, const QByteArray &kContent, int nID,
                        const QVector<int> &kRanges, int nValue = 0, bool bWrite = true) {
        QTest::newRow(pcName) << kContent << bWrite << nID << kRanges << nValue;
    };
    row("missing file", QByteArray(), 0, kDefault, 0, false);
    row("empty file", QByteArray(), 127, kDefault);
    row("only comments", "; nothing here\n# nor here\n", 5, kDefault);
    row("complete", kComplete, 100, kFile);

    QByteArray kNoSpin = kComplete;
    kNoSpin.truncate(kNoSpin.indexOf("[SpinBoxExtreme]"));
    row("spin group missing", kNoSpin, 30, { 0, 60, -50, 100 });

    QByteArray kNoMouth = kComplete;
    kNoMouth.replace("[MouthModifyString]", "[SomethingElse]");
    row("section group missing", kNoMouth, 30, kDefault);
    row("section after it intact", kNoMouth, 64, kFile);

    QByteArray kFewKeys = kComplete;
    kFewKeys.replace("S0_07=channel\n", "");
    row("fewer keys than channels", kFewKeys, 7, kDefault);
    row("fewer keys, others intact", kFewKeys, 6, kFile);

    QByteArray kMissingRange = kComplete;
    kMissingRange.replace("S2_03=0, 60\n", "");
    row("range key missing", kMissingRange, 18, { -50, 100, -10, 90 });

    row("reversed extremes", CompleteIni("100, 0", "150, -150"), 3, { 0, 100, -150, 150 });
    row("non-numeric extremes", CompleteIni("abc, 20", "low, high"), 3, { 20, 100, 100, 100 }, 100);
    row("single-number extremes", CompleteIni("50", "70"), 3, kDefault);

    // A key given twice counts once, and its last value holds.
    QByteArray kDuplicate = kComplete;
    kDuplicate.replace("S0_01=channel\n", "S0_01=channel\nS0_01=again\n");
    kDuplicate.replace("S0_01=0, 60\n", "S0_01=0, 60\nS0_01=5, 55\n");
    row("duplicate keys", kDuplicate, 1, { 5, 55, -10, 90 });
    row("group given twice", kComplete + "[SliderExtreme]\nS4_10=-5, 5\n", 74, { -5, 5, -10, 90 });
    row("oversized file", kComplete + ";" + QByteArray(5 * 1024 * 1024, 'x') + "\n", 3, kDefault);

    QByteArray kMalformed = kComplete;
    kMalformed.replace("[EyeModifyString]", "[EyeModifyString\nnot a line\n=\n");
    row("malformed lines", kMalformed, 0, kFile);
}

void tst_QKdFKModifyTableManager::badIniFiles()
{
    QFETCH(QByteArray, kContent);
    QFETCH(bool, bWrite);
    QFETCH(int, nCheckedID);
    QFETCH(QVector<int>, kRanges);
    QFETCH(int, nValue);

    QTemporaryDir kDir;
    const QString strPath =
        bWrite ? WriteIni(kDir, kContent) : kDir.filePath(QStringLiteral("missing.ini"));

    QKdFKModifyTableManager kTable;
    kTable.InitManager(strPath);
    MadeCells kCells;
    QCOMPARE(kCells.Count(), 128);

    QCOMPARE(RangesOf(kCells.At(nCheckedID)), kRanges);
    QCOMPARE(kCells.At(nCheckedID)->GetValue(), nValue);

    // The table stays usable: its forwarders still report.
    TableRecorder kRecorder(&kTable);
    kTable.UpdateSliderValues(kCells.At(nCheckedID));
    QCOMPARE(kRecorder.kEvents, QStringList({ QStringLiteral("change %1").arg(nCheckedID) }));
    QVERIFY(!bWrite || QFile::exists(strPath));
    QVERIFY(bWrite || !QFile::exists(strPath));
}

void tst_QKdFKModifyTableManager::binaryGarbage()
{
    QTemporaryDir kDir;
    QRandomGenerator kRandom(20260522);
    QByteArray kGarbage(64 * 1024, '\0');
    for (char &cByte : kGarbage)
        cByte = char(kRandom.bounded(256));
    // Some structure among the noise, so that the reader finds groups and keys to trip over.
    kGarbage.insert(1000, "\n[BrowModifyString]\n\xff\xfe=\x01\x02\n");
    kGarbage.insert(5000, "\n[SliderExtreme]\n\xff\xfe=\x80, \x81\n");

    for (const QString &strPath :
         { WriteIni(kDir, kGarbage), kDir.path(), QStringLiteral("/dev/null") }) {
        QKdFKModifyTableManager kTable;
        kTable.InitManager(strPath);
        MadeCells kCells;
        QCOMPARE(kCells.Count(), 128);
        for (CKdFKModifyCellWidget *pkCell : kCells.All()) {
            QVERIFY(pkCell->GetMinimum() <= pkCell->GetMaximum());
            QVERIFY(pkCell->GetSpinMinimum() <= pkCell->GetSpinMaximum());
        }
    }
}

void tst_QKdFKModifyTableManager::nonAsciiKeys()
{
    QTemporaryDir kDir;
    QByteArray kContent = CompleteIni("0, 60", "-10, 90");
    kContent.replace("S0_00", "S0_00_Augenbraue_\xc3\xa4_\xe7\x9c\x89");
    const QString strPath = WriteIni(kDir, kContent);

    ProbeModifyTable kTable;
    QString strKey;
    kTable.GetSectionModifyString(strPath, 0, 0, strKey);
    QVERIFY(strKey.startsWith(QStringLiteral("S0_00_Augenbraue_")));
    const Vela::CArrayList<int> kExtreme =
        kTable.GetExtreme(strPath, QStringLiteral("SpinBoxExtreme"), strKey);
    QCOMPARE(QVector<int>(kExtreme.cbegin(), kExtreme.cend()), QVector<int>({ -10, 90 }));
}

void tst_QKdFKModifyTableManager::hostFileIsNeverWritten()
{
    // Qt would normalise the file on any write: the bytes must stay exactly as the host wrote
    // them, odd spacing, comments and unknown groups included.
    QTemporaryDir kDir;
    QFile kSample(kSampleIni);
    QVERIFY(kSample.open(QIODevice::ReadOnly));
    const QByteArray kOriginal = kSample.readAll() + "\n[Unknown]\n  odd  =  spacing , here ;x\n";
    const QString strPath = WriteIni(kDir, kOriginal);
    const QDateTime kModified = QFileInfo(strPath).lastModified();

    {
        QKdFKModifyTableManager kTable;
        kTable.InitManager(strPath);
        MadeCells kCells;
    }

    QFile kFile(strPath);
    QVERIFY(kFile.open(QIODevice::ReadOnly));
    QCOMPARE(kFile.readAll(), kOriginal);
    QCOMPARE(QFileInfo(strPath).lastModified(), kModified);
}

void tst_QKdFKModifyTableManager::sliderDragReachesTable()
{
    QKdFKModifyTableManager kTable;
    kTable.InitManager(kSampleIni);
    MadeCells kCells;
    CKdFKModifyCellWidget *pkCell = kCells.At(30); // a mouth channel, slider -20..100
    WireCell(pkCell, &kTable);
    TableRecorder kRecorder(&kTable);

    pkCell->resize(400, 70);
    pkCell->show();
    QVERIFY(QTest::qWaitForWindowExposed(pkCell));
    QSlider *pkSlider = pkCell->GetSlider()->UI()->qtHorizontalSlider;
    ComboEditorTest::dragHandle(pkSlider, pkSlider->width() / 3);

    QVERIFY(pkCell->GetValue() > 0);
    QVERIFY(kRecorder.kEvents.size() >= 3);
    QCOMPARE(kRecorder.kEvents.first(), QStringLiteral("begin 30"));
    QCOMPARE(kRecorder.kEvents.last(), QStringLiteral("stop 30"));
    for (int i = 1; i < kRecorder.kEvents.size() - 1; ++i)
        QCOMPARE(kRecorder.kEvents.at(i), QStringLiteral("change 30"));

    // A double-click is one more complete session.
    kRecorder.kEvents.clear();
    QTest::mouseDClick(pkCell->GetNameLabel(), Qt::LeftButton);
    QCOMPARE(pkCell->GetValue(), 0);
    QCOMPARE(kRecorder.kEvents, QStringList({ "begin 30", "change 30", "stop 30" }));
}

void tst_QKdFKModifyTableManager::valuesFromOutsideSilenceEdits()
{
    ProbeModifyTable kTable;
    CKdFKModifyCellWidget kCell;
    kCell.SetItem(12, 0, QStringLiteral("Squint"), { 0, 100 }, { 0, 100 }, &kTable);
    WireCell(&kCell, &kTable);
    QObject::connect(&kCell, &CKdFKModifyCellWidget::SliderEditFinished, &kTable,
                     [&kTable, &kCell] { kTable.RenameSlider(&kCell); });
    TableRecorder kRecorder(&kTable);

    kTable.SetValuesFromOutside(true);
    QMouseEvent kDoubleClick(QEvent::MouseButtonDblClick, QPoint(3, 3), Qt::LeftButton,
                             Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&kCell, &kDoubleClick);
    QCOMPARE(kCell.GetValue(), 100);
    QCOMPARE(kRecorder.kEvents, QStringList({ "rename 12" }));

    // Pushing weights or enable states in ends the outside phase.
    kRecorder.kEvents.clear();
    kTable.SetWeights({ 0.5f }, {}, {});
    QApplication::sendEvent(&kCell, &kDoubleClick);
    QCOMPARE(kRecorder.kEvents, QStringList({ "begin 12", "change 12", "stop 12", "rename 12" }));

    kRecorder.kEvents.clear();
    kTable.SetValuesFromOutside(true);
    kTable.SetEnable({ true }, { false }, {});
    kTable.UpdateSliderValues(&kCell);
    QCOMPARE(kRecorder.kEvents, QStringList({ "change 12" }));
}

void tst_QKdFKModifyTableManager::nullCellIsIgnored()
{
    QKdFKModifyTableManager kTable;
    TableRecorder kRecorder(&kTable);
    kTable.UpdateSliderValues(nullptr);
    kTable.BeginEditSlider(nullptr);
    kTable.StopEditSlider(nullptr);
    kTable.RenameSlider(nullptr);
    QVERIFY(kRecorder.kEvents.isEmpty());
}

void tst_QKdFKModifyTableManager::fixedAccessors()
{
    QKdFKModifyTableManager kTable;
    QCOMPARE(kTable.GetName(0), std::wstring());
    QCOMPARE(kTable.GetName(-5), std::wstring());
    QCOMPARE(kTable.GetWeight(3), 0.0f);

    Vela::CArrayList<float> kLong(75, 0.25f);
    Vela::CArrayList<float> kSecond(3, 1.0f);
    Vela::CArrayList<float> kThird(7, 2.0f);
    kTable.GetWeights(kLong, kSecond, kThird);
    QCOMPARE(kLong.size(), size_t(60));
    QVERIFY(std::all_of(kLong.cbegin(), kLong.cend(), [](float f) { return f == 0.25f; }));
    QCOMPARE(kSecond.size(), size_t(3));
    QCOMPARE(kThird.size(), size_t(7));

    Vela::CArrayList<float> kEmpty;
    kTable.GetWeights(kEmpty, kSecond, kThird);
    QCOMPARE(kEmpty, Vela::CArrayList<float>(60, 0.0f));

    // The name, show-hide and weight setters change nothing visible.
    kTable.UpdateSliderNames({ { L"Smile", true }, { L"", false } });
    for (int nSection : { -1, 0, 3, 4, 5, 1000 })
        kTable.UpdateSliderShowHide(nSection, QStringLiteral("smi"));
    kTable.SetWeights(kLong, kSecond, kThird);
    QVERIFY(!kTable.model());
    QCOMPARE(kTable.GetWeight(0), 0.0f);
}

void tst_QKdFKModifyTableManager::hoverTracking()
{
    QKdFKModifyTableManager kTable;
    QStandardItemModel kModel(2, 2);
    kTable.setModel(&kModel);
    kTable.resize(400, 300);
    kTable.show();
    QVERIFY(QTest::qWaitForWindowExposed(&kTable));
    TableRecorder kRecorder(&kTable);
    QWidget *pkViewport = kTable.viewport();
    QVERIFY(pkViewport->hasMouseTracking());

    const QPoint kCell00 = kTable.visualRect(kModel.index(0, 0)).center();
    const QPoint kCell10 = kTable.visualRect(kModel.index(1, 0)).center();
    const QPoint kBelowRows = kTable.visualRect(kModel.index(1, 0)).bottomLeft() + QPoint(5, 40);
    QVERIFY(!kTable.indexAt(kBelowRows).isValid());

    for (const QPoint &kPos : { kBelowRows, kCell00, kCell00 + QPoint(2, 1), kCell10, kBelowRows,
                                kBelowRows + QPoint(3, 3) })
        ComboEditorTest::moveHeld(pkViewport, kPos, Qt::NoButton);

    QCOMPARE(kRecorder.kEvents,
             QStringList({ "entered 0,0", "left 0,0", "entered 1,0", "left 1,0" }));
}

void tst_QKdFKModifyTableManager::tabStaysInTable()
{
    QWidget kWindow;
    QVBoxLayout *pkLayout = new QVBoxLayout(&kWindow);
    ProbeModifyTable *pkTable = new ProbeModifyTable;
    QLineEdit *pkEdit = new QLineEdit;
    pkLayout->addWidget(pkTable);
    pkLayout->addWidget(pkEdit);
    kWindow.show();
    QVERIFY(QTest::qWaitForWindowActive(&kWindow));
    pkTable->setFocus();
    QTRY_VERIFY(pkTable->hasFocus());

    QVERIFY(!pkTable->focusNext());
    QVERIFY(!pkTable->focusPrevious());
    QTest::keyClick(pkTable, Qt::Key_Tab);
    QVERIFY(pkTable->hasFocus());
    QTest::keyClick(pkTable, Qt::Key_Backtab);
    QVERIFY(pkTable->hasFocus());
}

VELA_TEST_CLASS(tst_QKdFKModifyTableManager)
#include "tst_QKdFKModifyTableManager.moc"
