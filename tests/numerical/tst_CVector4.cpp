#include "VelaTest.h"
#include "VelaVector.h"

#include <QMetaType>
#include <QtTest>

// Receives a packed value through a queued connection, as a host in another thread would.
class VectorReceiver : public QObject
{
    Q_OBJECT

public:
    Vela::CVector4f received;
    int calls = 0;

signals:
    void Send(Vela::CVector4f vValue);

public slots:
    void Receive(Vela::CVector4f vValue)
    {
        received = vValue;
        ++calls;
    }
};

class tst_CVector4 : public QObject
{
    Q_OBJECT

private slots:
    void components();
    void queuedConnection();
};

void tst_CVector4::components()
{
    QCOMPARE(sizeof(Vela::CVector4f), 4 * sizeof(float));
    Vela::CVector4f v(1.5f, -2.0f, 3.25f, 4.0f);
    QCOMPARE(v[1], -2.0f);
    QCOMPARE(v[3], 4.0f);
    v.Set(2, 9.0f);
    QCOMPARE(v.z, 9.0f);
    // Indices outside 0 to 3 read 0 and write nothing.
    QCOMPARE(v[-1], 0.0f);
    QCOMPARE(v[4], 0.0f);
    v.Set(4, 7.0f);
    v.Set(-1, 7.0f);
    QVERIFY(v == Vela::CVector4f(1.5f, -2.0f, 9.0f, 4.0f));
    QVERIFY(v != Vela::CVector4f(1.5f, -2.0f, 9.0f, 0.0f));
}

void tst_CVector4::queuedConnection()
{
    // Hosts connect by the type's name as well as by pointer.
    QCOMPARE(QMetaType::type("Vela::CVector4f"), qMetaTypeId<Vela::CVector4f>());
    VectorReceiver receiver;
    connect(&receiver, &VectorReceiver::Send, &receiver, &VectorReceiver::Receive,
            Qt::QueuedConnection);
    QVERIFY(QObject::connect(&receiver, SIGNAL(Send(Vela::CVector4f)), &receiver,
                             SLOT(Receive(Vela::CVector4f)), Qt::QueuedConnection));
    emit receiver.Send(Vela::CVector4f(1, 2, 3, 4));
    QCOMPARE(receiver.calls, 0);
    QTRY_COMPARE(receiver.calls, 2);
    QVERIFY(receiver.received == Vela::CVector4f(1, 2, 3, 4));
}

VELA_TEST_CLASS(tst_CVector4)
#include "tst_CVector4.moc"
