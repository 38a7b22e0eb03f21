// SPDX-License-Identifier: MIT
#include "platform/picture_fetcher.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <optional>

#include "platform/ftp_transfer.h"

namespace kev {
namespace {

// Answers every request with the same bytes.
class OneAnswerServer {
 public:
  explicit OneAnswerServer(QByteArray answer) : answer_(std::move(answer)) {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
      QTcpSocket* socket = server_.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
        ++requests;
        socket->readAll();
        socket->write(answer_);
        socket->disconnectFromHost();
      });
    });
  }
  QUrl Address() const {
    return QUrl(QStringLiteral("http://127.0.0.1:%1/logo.png").arg(server_.serverPort()));
  }
  int requests = 0;

 private:
  QByteArray answer_;
  QTcpServer server_;
};

class PictureFetcherTest : public testing::Test {
 protected:
  std::optional<bool> FetchAndWait(PictureFetcher& fetcher, const QUrl& address) {
    std::optional<bool> there;
    fetcher.Fetch(address, File(), [&there](bool good) { there = good; });
    EXPECT_FALSE(there.has_value()) << "the answer must come from the event loop";
    EXPECT_TRUE(QTest::qWaitFor([&] { return there.has_value(); }));
    return there;
  }
  std::string File() const { return folder.filePath(QStringLiteral("logo.png")).toStdString(); }
  QByteArray Written() const {
    QFile file(folder.filePath(QStringLiteral("logo.png")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir folder;
};

TEST_F(PictureFetcherTest, APictureArrivesWhole) {
  OneAnswerServer server("HTTP/1.0 200 OK\r\n\r\npicture");
  PictureFetcher fetcher;
  EXPECT_EQ(FetchAndWait(fetcher, server.Address()), true);
  EXPECT_EQ(Written(), "picture");
}

TEST_F(PictureFetcherTest, AMissingPictureLeavesNoFile) {
  OneAnswerServer server("HTTP/1.0 404 Not Found\r\n\r\nno such page");
  PictureFetcher fetcher;
  EXPECT_EQ(FetchAndWait(fetcher, server.Address()), false);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(File())));
}

TEST_F(PictureFetcherTest, APictureThatIsTooLargeLeavesNoFile) {
  OneAnswerServer server("HTTP/1.0 200 OK\r\n\r\n" + QByteArray(2000, 'x'));
  PictureFetcher fetcher({1000, 5000});
  EXPECT_EQ(FetchAndWait(fetcher, server.Address()), false);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(File())));
}

TEST_F(PictureFetcherTest, AServerThatNeverAnswersIsGivenUp) {
  QTcpServer silent;
  silent.listen(QHostAddress::LocalHost);
  PictureFetcher fetcher({1000, 100});
  EXPECT_EQ(FetchAndWait(fetcher, QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(silent.serverPort()))),
            false);
  EXPECT_EQ(FetchAndWait(fetcher, QUrl(QStringLiteral("ftp://127.0.0.1:%1/").arg(silent.serverPort()))),
            false);
}

TEST_F(PictureFetcherTest, OtherKindsOfAddressFail) {
  PictureFetcher fetcher;
  EXPECT_EQ(FetchAndWait(fetcher, QUrl(QStringLiteral("file:///etc/passwd"))), false);
  EXPECT_EQ(FetchAndWait(fetcher, QUrl()), false);
}

TEST_F(PictureFetcherTest, ARedirectionToALocalFileIsNotFollowed) {
  OneAnswerServer server("HTTP/1.0 302 Found\r\nLocation: file:///etc/passwd\r\n\r\n");
  PictureFetcher fetcher;
  EXPECT_EQ(FetchAndWait(fetcher, server.Address()), false);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(File())));
}

TEST_F(PictureFetcherTest, TwoWishesForOneFileMakeOneRequest) {
  OneAnswerServer server("HTTP/1.0 200 OK\r\n\r\npicture");
  PictureFetcher fetcher;
  int answers = 0;
  fetcher.Fetch(server.Address(), File(), [&answers](bool) { ++answers; });
  fetcher.Fetch(server.Address(), File(), [&answers](bool) { ++answers; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return answers == 2; }));
  EXPECT_EQ(server.requests, 1);
}

// A server that knows one file and keeps the commands that it was given.
class FtpServer {
 public:
  explicit FtpServer(QByteArray file) : file_(std::move(file)) {
    control_.listen(QHostAddress::LocalHost);
    data_.listen(QHostAddress::LocalHost);
    QObject::connect(&control_, &QTcpServer::newConnection, &control_, [this] {
      QTcpSocket* socket = control_.nextPendingConnection();
      socket->write("220-Hello\r\n220 Ready\r\n");
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
        while (socket->canReadLine())
          Answer(*socket, socket->readLine().trimmed());
      });
    });
  }
  QUrl Address(const QString& path) const {
    return QUrl(QStringLiteral("ftp://127.0.0.1:%1%2").arg(control_.serverPort()).arg(path));
  }
  // The connection of the data is left open behind the file.
  void KeepDataOpen() { keepDataOpen_ = true; }
  QList<QByteArray> commands;
  bool confirmed = false;

 private:
  void Answer(QTcpSocket& socket, const QByteArray& command) {
    commands << command;
    if (command.startsWith("USER")) socket.write("331 Password\r\n");
    if (command.startsWith("PASS")) socket.write("230 In\r\n");
    if (command.startsWith("TYPE")) socket.write("200 Binary\r\n");
    if (command == "EPSV") {
      socket.write("229 Entering (|||" + QByteArray::number(data_.serverPort()) + "|)\r\n");
    }
    if (!command.startsWith("RETR")) return;
    if (command != "RETR /pics/logo.png") {
      socket.write("550 No such file\r\n");
      return;
    }
    socket.write("150 Here it comes\r\n");
    if (data_.hasPendingConnections() || data_.waitForNewConnection(2000)) {
      QTcpSocket* data = data_.nextPendingConnection();
      data->write(file_);
      if (!keepDataOpen_) data->disconnectFromHost();
    }
    socket.write("226 Done\r\n");
    confirmed = true;
  }

  QByteArray file_;
  bool keepDataOpen_ = false;
  QTcpServer control_;
  QTcpServer data_;
};

TEST_F(PictureFetcherTest, APictureComesByFtp) {
  FtpServer server("picture by ftp");
  PictureFetcher fetcher;
  EXPECT_EQ(FetchAndWait(fetcher, server.Address(QStringLiteral("/pics/logo.png"))), true);
  EXPECT_EQ(Written(), "picture by ftp");
  EXPECT_EQ(server.commands.first(), "USER anonymous");
}

// All was confirmed, only the data has not ended: the end of the transfer itself ends it.
TEST_F(PictureFetcherTest, ATransferThatIsDestroyedOnItsWayTellsNothing) {
  FtpServer server("picture by ftp");
  server.KeepDataOpen();
  auto transfer =
      std::make_unique<FtpTransfer>(server.Address(QStringLiteral("/pics/logo.png")), qint64{1} << 20);
  int told = 0;
  QObject::connect(transfer.get(), &FtpTransfer::Finished, [&told] { ++told; });
  transfer->Start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return transfer->Bytes().size() == 14 && server.confirmed; }));
  QTest::qWait(20);
  transfer.reset();
  EXPECT_EQ(told, 0);
}

TEST_F(PictureFetcherTest, AFileThatTheFtpServerLacksFails) {
  FtpServer server("picture");
  PictureFetcher fetcher;
  EXPECT_EQ(FetchAndWait(fetcher, server.Address(QStringLiteral("/other.png"))), false);
}

TEST_F(PictureFetcherTest, ALineBreakInAnFtpPathIsNoSecondCommand) {
  FtpServer server("picture");
  PictureFetcher fetcher;
  FetchAndWait(fetcher, server.Address(QStringLiteral("/a%0D%0ADELE%20b")));
  for (const QByteArray& command : server.commands)
    EXPECT_FALSE(command.startsWith("DELE"));
}

}  // namespace
}  // namespace kev
