// SPDX-License-Identifier: MIT
#include "platform/ftp_transfer.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <utility>

namespace kev {

namespace {

constexpr int kFtpPort = 21;
constexpr qsizetype kLongestReply = 8192;

// What is sent after each good reply; EPSV is the step whose reply names the port of the data.
enum Step { kUser, kPassword, kBinary, kPassive, kRetrieve, kWaiting };

// A line break inside a path would end the command and begin another.
QByteArray OneLine(QByteArray text) {
  return text.replace('\r', "").replace('\n', "");
}

QByteArray CommandOf(int step, const QUrl& address) {
  switch (step) {
    case kUser:
      return "USER " + OneLine(address.userName(QUrl::FullyDecoded).isEmpty()
                                   ? QByteArray("anonymous")
                                   : address.userName(QUrl::FullyDecoded).toUtf8());
    case kPassword:
      return "PASS " + OneLine(address.password(QUrl::FullyDecoded).isEmpty()
                                   ? QByteArray("anonymous@")
                                   : address.password(QUrl::FullyDecoded).toUtf8());
    case kBinary:
      return "TYPE I";
    case kPassive:
      return "EPSV";
    default:
      return "RETR " + OneLine(address.path(QUrl::FullyDecoded).toUtf8());
  }
}

}  // namespace

FtpTransfer::FtpTransfer(QUrl address, qint64 mostBytes, QObject* parent)
    : QObject(parent), address_(std::move(address)), mostBytes_(mostBytes) {
  connect(&control_, &QTcpSocket::readyRead, this, &FtpTransfer::ReadReplies);
  connect(&control_, &QTcpSocket::errorOccurred, this, [this] { End(false); });
  connect(&data_, &QTcpSocket::readyRead, this, &FtpTransfer::TakeData);
  connect(&data_, &QTcpSocket::disconnected, this, [this] {
    TakeData();
    dataEnded_ = true;
    CheckComplete();
  });
  connect(&data_, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
    if (error != QAbstractSocket::RemoteHostClosedError) End(false);
  });
}

FtpTransfer::~FtpTransfer() {
  // A socket that is destroyed while it is connected still tells its end, when part of this object is gone.
  ended_ = true;
  control_.disconnect(this);
  data_.disconnect(this);
}

void FtpTransfer::Start() {
  control_.connectToHost(address_.host(), static_cast<quint16>(address_.port(kFtpPort)));
}

void FtpTransfer::ReadReplies() {
  while (!ended_ && control_.canReadLine()) {
    const QByteArray line = control_.readLine(kLongestReply).trimmed();
    // "220-text" goes on in the next line; only "220 text" ends a reply.
    if (line.size() >= 3 && (line.size() == 3 || line[3] == ' ')) HandleReply(line.left(3).toInt(), line);
  }
  if (!ended_ && control_.bytesAvailable() > kLongestReply) End(false);
}

void FtpTransfer::HandleReply(int code, const QByteArray& line) {
  if (code >= 400) return End(false);
  if (code < 200) return;  // the data connection is being used; the answer comes when it is done
  if (step_ == kWaiting) {
    confirmed_ = true;
    return CheckComplete();
  }
  // The reply to EPSV is the one that lets RETR be sent.
  if (step_ == kRetrieve) OpenData(line);
  // A server that takes the name alone answers with 230 and wants no password.
  if (step_ == kPassword && code == 230) ++step_;
  SendNext();
}

void FtpTransfer::SendNext() {
  if (ended_) return;
  control_.write(CommandOf(step_, address_) + "\r\n");
  ++step_;
}

void FtpTransfer::OpenData(const QByteArray& reply) {
  static const QRegularExpression port(QStringLiteral("\\(\\|\\|\\|(\\d+)\\|\\)"));
  const QRegularExpressionMatch match = port.match(QString::fromLatin1(reply));
  const uint number = match.captured(1).toUInt();
  if (number == 0 || number > 65535) return End(false);
  // Always the host that was asked, never one that the answer names.
  data_.connectToHost(control_.peerAddress(), static_cast<quint16>(number));
}

void FtpTransfer::TakeData() {
  if (!data_.isOpen()) return;
  bytes_ += data_.readAll();
  if (bytes_.size() > mostBytes_) End(false);
}

void FtpTransfer::CheckComplete() {
  if (dataEnded_ && confirmed_) End(true);
}

void FtpTransfer::End(bool good) {
  if (std::exchange(ended_, true)) return;
  if (!good) bytes_.clear();
  data_.abort();
  control_.abort();
  Q_EMIT Finished(good);
}

}  // namespace kev
