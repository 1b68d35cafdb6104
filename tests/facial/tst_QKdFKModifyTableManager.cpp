#include "CKdFKModifyCellWidget.h"
#include "QKdFKModifyTableManager.h"
#include "VelaTest.h"

#include <QFile>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>
#include <memory>

namespace {

const QString kSampleIni = QStringLiteral(VELA_TEST_DATA_DIR "/facial/FacialKeys.ini");

// Reaches the table's protected id map and its outside-set flag, as a host subclass can.
class ProbeModifyTable : public QKdFKModifyTableManager
{
public:
    using QKdFKModifyTableManager::GetSectionConvertExpMap;
    using QKdFKModifyTableManager::QKdFKModifyTableManager;

    void SetValuesFromOutside(bool bOutside) { m_bSetValueOutside = bOutside; }
};

// The parentless cells InitManager leaves behind, taken over (and freed) by the test, by id.
using Cells = std::vector<std::unique_ptr<CKdFKModifyCellWidget>>;
Cells MadeCells()
{
    Cells kCells;
    for (QWidget *pkWidget : QApplication::topLevelWidgets()) {
        if (CKdFKModifyCellWidget *pkCell = qobject_cast<CKdFKModifyCellWidget *>(pkWidget))
            kCells.emplace_back(pkCell);
    }
    std::sort(kCells.begin(), kCells.end(),
              [](const auto &a, const auto &b) { return a->GetID() < b->GetID(); });
    return kCells;
}

// The channel count of each section, in section order; the cell ids run on across sections.
const int kChannels[] = { 8, 7, 10, 39, 64 };

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
        for (int nIndex = 0; nIndex < kChannels[nSection]; ++nIndex) {
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

// The table's signals in order, as "begin 3", "change 3", "stop 3", "rename 3", "entered 0,1".
class TableRecorder : public QObject
{
public:
    explicit TableRecorder(QKdFKModifyTableManager *pkTable)
    {
        const auto cell = [this](const char *pcWhat) {
            return [this, pcWhat](int nID) { kEvents << QString::asprintf("%s %d", pcWhat, nID); };
        };
        const auto index = [this](const char *pcWhat) {
            return [this, pcWhat](const QModelIndex &kIndex) {
                kEvents << QString::asprintf("%s %d,%d", pcWhat, kIndex.row(), kIndex.column());
            };
        };
        connect(pkTable, &QKdFKModifyTableManager::BeginChangeCellSlider, this, cell("begin"));
        connect(pkTable, &QKdFKModifyTableManager::ChangeCellSlider, this, cell("change"));
        connect(pkTable, &QKdFKModifyTableManager::StopChangeCellSlider, this, cell("stop"));
        connect(pkTable, &QKdFKModifyTableManager::RenameCellSlider, this, cell("rename"));
        connect(pkTable, &QKdFKModifyTableManager::MouseEntered, this, index("entered"));
        connect(pkTable, &QKdFKModifyTableManager::MouseLeft, this, index("left"));
    }

    QStringList kEvents;
};

} // namespace

class tst_QKdFKModifyTableManager : public QObject
{
    Q_OBJECT

private slots:
    void expressionMaps_data();
    void expressionMaps();
    void initManagerWithSample();
    void badIniFiles_data();
    void badIniFiles();
    void valuesFromOutsideSilenceEdits();
    void fixedAccessors();
    void hoverTracking();
    void tabStaysInTable();
};

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
    QCOMPARE(kUntouched.at(1), 2);
}

void tst_QKdFKModifyTableManager::initManagerWithSample()
{
    QKdFKModifyTableManager kTable;
    QStandardItemModel kModel(130, 2);
    kTable.setModel(&kModel);
    const int nDefaultHeight = kTable.rowHeight(129);
    kTable.InitManager(kSampleIni);
    const Cells kCells = MadeCells();

    QCOMPARE(int(kCells.size()), 128);
    // Every channel of a section has its section's ranges from the sample file.
    const QVector<int> kExpected[] = { { 0, 100, -50, 150 },
                                       { 0, 100, 0, 100 },
                                       { 0, 100, -100, 200 },
                                       { -20, 100, -50, 150 },
                                       { -100, 100, -200, 200 } };
    int nID = 0;
    for (int nSection = 0; nSection < 5; ++nSection) {
        for (int nIndex = 0; nIndex < kChannels[nSection]; ++nIndex, ++nID) {
            CKdFKModifyCellWidget *pkCell = kCells.at(nID).get();
            QCOMPARE(pkCell->GetID(), nID);
            QCOMPARE(pkCell->GetValue(), 0);
            QCOMPARE(RangesOf(pkCell), kExpected[nSection]);
        }
    }

    // One row of 70 pixels per channel, in a column 370 wide; rows past them keep their height.
    QCOMPARE(kTable.columnWidth(0), 370);
    QCOMPARE(kTable.rowHeight(127), 70);
    QCOMPARE(kTable.rowHeight(128), nDefaultHeight);
}

void tst_QKdFKModifyTableManager::badIniFiles_data()
{
    QTest::addColumn<QByteArray>("kContent"); // empty with bWrite false: no file at all
    QTest::addColumn<bool>("bWrite");
    QTest::addColumn<int>("nCheckedID");
    QTest::addColumn<QVector<int>>("kRanges"); // slider min, max, spin min, max

    const QVector<int> kDefault({ -50, 100, -50, 100 });
    const QVector<int> kFile({ 0, 60, -10, 90 });
    const QByteArray kComplete = CompleteIni("0, 60", "-10, 90");
    const auto row = [](const char *pcName, const QByteArray &kContent, int nID,
                        const QVector<int> &kRanges, bool bWrite = true) {
        QTest::newRow(pcName) << kContent << bWrite << nID << kRanges;
    };
    row("missing file", QByteArray(), 0, kDefault, false);
    row("empty file", QByteArray(), 127, kDefault);
    row("unknown group, odd spacing", kComplete + "\n[Unknown]\n  odd  =  spacing , here ;x\n", 100,
        kFile);

    row("spin group missing", kComplete.left(kComplete.indexOf("[SpinBoxExtreme]")), 30,
        { 0, 60, -50, 100 });
    const QByteArray kNoMouth =
        QByteArray(kComplete).replace("[MouthModifyString]", "[SomethingElse]");
    row("section group missing", kNoMouth, 30, kDefault);
    row("section after it intact", kNoMouth, 64, kFile);
    const QByteArray kFewKeys = QByteArray(kComplete).replace("S0_07=channel\n", "");
    row("fewer keys than channels", kFewKeys, 7, kDefault);
    row("fewer keys, others intact", kFewKeys, 6, kFile);
    row("range key missing", QByteArray(kComplete).replace("S2_03=0, 60\n", ""), 18,
        { -50, 100, -10, 90 });

    row("spaced extremes", CompleteIni(" -5 ,  15 ", "-10 ,90"), 3, { -5, 15, -10, 90 });
    row("non-numeric extremes", CompleteIni("abc, 20", "low, high"), 3, { 20, 100, 100, 100 });
    row("extremes too large", CompleteIni("99999999999, 1", "-10, 90"), 3, { 1, 100, -10, 90 });
    row("single-number extremes", CompleteIni("50", "70"), 3, kDefault);

    row("oversized file", kComplete + ";" + QByteArray(5 * 1024 * 1024, 'x') + "\n", 3, kDefault);

    row("non-ASCII key",
        QByteArray(kComplete).replace("S0_00", "S0_00_Augenbraue_\xc3\xa4_\xe7\x9c\x89"), 0, kFile);
}

void tst_QKdFKModifyTableManager::badIniFiles()
{
    QFETCH(QByteArray, kContent);
    QFETCH(bool, bWrite);
    QFETCH(int, nCheckedID);
    QFETCH(QVector<int>, kRanges);

    QTemporaryDir kDir;
    const QString strPath = bWrite
        ? VelaTest::writeFile(kDir.path(), QStringLiteral("facial.ini"), kContent)
        : kDir.filePath(QStringLiteral("missing.ini"));

    QKdFKModifyTableManager kTable;
    kTable.InitManager(strPath);
    const Cells kCells = MadeCells();
    QCOMPARE(int(kCells.size()), 128);

    QCOMPARE(RangesOf(kCells.at(nCheckedID).get()), kRanges);
    QCOMPARE(QFile::exists(strPath), bWrite);
    // Qt would normalise the file on any write: the bytes stay exactly as the host wrote them.
    QFile kFile(strPath);
    QVERIFY(!bWrite || (kFile.open(QIODevice::ReadOnly) && kFile.readAll() == kContent));
}

void tst_QKdFKModifyTableManager::valuesFromOutsideSilenceEdits()
{
    ProbeModifyTable kTable;
    CKdFKModifyCellWidget kCell;
    kCell.SetItem(12, 0, QStringLiteral("Squint"), { 0, 100 }, { 0, 100 }, &kTable);
    TableRecorder kRecorder(&kTable);
    // What one edit of pkCell, from its start to a rename, reports.
    const auto edit = [&kTable, &kRecorder](CKdFKModifyCellWidget *pkCell) {
        kRecorder.kEvents.clear();
        kTable.BeginEditSlider(pkCell);
        kTable.UpdateSliderValues(pkCell);
        kTable.StopEditSlider(pkCell);
        kTable.RenameSlider(pkCell);
        return kRecorder.kEvents;
    };

    QVERIFY(edit(nullptr).isEmpty());
    const QStringList kSession({ "begin 12", "change 12", "stop 12", "rename 12" });
    QCOMPARE(edit(&kCell), kSession);
    kTable.SetValuesFromOutside(true);
    QCOMPARE(edit(&kCell), QStringList({ "rename 12" }));

    // Pushing weights or enable states in ends the outside phase.
    kTable.SetWeights({ 0.5f }, {}, {});
    QCOMPARE(edit(&kCell), kSession);
    kTable.SetValuesFromOutside(true);
    kTable.SetEnable({ true }, { false }, {});
    QCOMPARE(edit(&kCell), kSession);
}

void tst_QKdFKModifyTableManager::fixedAccessors()
{
    // The first list is brought to 60 entries, keeping what it holds; the others stay.
    QKdFKModifyTableManager kTable;
    Vela::CArrayList<float> kLong(75, 0.25f);
    Vela::CArrayList<float> kEmpty;
    Vela::CArrayList<float> kThird(7, 2.0f);
    kTable.GetWeights(kLong, kEmpty, kThird);
    QCOMPARE(kLong, Vela::CArrayList<float>(60, 0.25f));
    QVERIFY(kEmpty.empty());
    QCOMPARE(kThird.size(), size_t(7));
    kTable.GetWeights(kEmpty, kLong, kThird);
    QCOMPARE(kEmpty, Vela::CArrayList<float>(60, 0.0f));
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
        VelaTest::mouseMove(pkViewport, kPos, Qt::NoButton);

    QCOMPARE(kRecorder.kEvents,
             QStringList({ "entered 0,0", "left 0,0", "entered 1,0", "left 1,0" }));
}

void tst_QKdFKModifyTableManager::tabStaysInTable()
{
    QWidget kWindow;
    QVBoxLayout *pkLayout = new QVBoxLayout(&kWindow);
    QKdFKModifyTableManager *pkTable = new QKdFKModifyTableManager;
    pkLayout->addWidget(pkTable);
    pkLayout->addWidget(new QLineEdit);
    kWindow.show();
    QVERIFY(QTest::qWaitForWindowActive(&kWindow));
    pkTable->setFocus();
    QTRY_VERIFY(pkTable->hasFocus());

    QTest::keyClick(pkTable, Qt::Key_Tab);
    QVERIFY(pkTable->hasFocus());
    QTest::keyClick(pkTable, Qt::Key_Backtab);
    QVERIFY(pkTable->hasFocus());
}

VELA_TEST_CLASS(tst_QKdFKModifyTableManager)
#include "tst_QKdFKModifyTableManager.moc"
