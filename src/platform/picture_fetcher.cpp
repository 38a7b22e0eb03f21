// SPDX-License-Identifier: MIT
#include "platform/picture_fetcher.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <utility>

#include "base/files.h"
#include "platform/ftp_transfer.h"

namespace kev {

PictureFetcher::PictureFetcher(FetchLimits limits, QObject* parent) : QObject(parent), limits_(limits) {}

void PictureFetcher::Fetch(const QUrl& address, const std::string& file, Done done) {
  std::vector<Done>& waiting = waiting_[file];
  waiting.push_back(std::move(done));
  if (waiting.size() > 1) return;
  const QString scheme = address.scheme();
  if (scheme == QLatin1String("http") || scheme == QLatin1String("https")) {
    StartHttp(address, file);
  } else if (scheme == QLatin1String("ftp")) {
    StartFtp(address, file);
  } else {
    QTimer::singleShot(0, this, [this, file] { Finish(file, false, {}); });
  }
}

void PictureFetcher::StartHttp(const QUrl& address, const std::string& file) {
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  QNetworkReply* reply = network_.get(request);
  // The transfer as a whole is limited, so that a server that sends a byte now and then ends too.
  QTimer::singleShot(limits_.milliseconds, reply, &QNetworkReply::abort);
  connect(reply, &QNetworkReply::downloadProgress, reply, [this, reply](qint64 received, qint64 total) {
    if (received > limits_.bytes || total > limits_.bytes) reply->abort();
  });
  connect(reply, &QNetworkReply::finished, this, [this, reply, file] {
    const bool good = reply->error() == QNetworkReply::NoError && reply->bytesAvailable() <= limits_.bytes;
    Finish(file, good, good ? reply->readAll() : QByteArray());
    reply->deleteLater();
  });
}

void PictureFetcher::StartFtp(const QUrl& address, const std::string& file) {
  auto* transfer = new FtpTransfer(address, limits_.bytes, this);
  QTimer::singleShot(limits_.milliseconds, transfer, &FtpTransfer::Abort);
  connect(transfer, &FtpTransfer::Finished, this, [this, transfer, file](bool good) {
    Finish(file, good, transfer->Bytes());
    transfer->deleteLater();
  });
  transfer->Start();
}

void PictureFetcher::Finish(const std::string& file, bool good, const QByteArray& bytes) {
  const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  const bool written = good && !content.empty() && !WriteWholeFile(file, content);
  const std::vector<Done> waiting = std::exchange(waiting_[file], {});
  waiting_.erase(file);
  for (const Done& done : waiting)
    done(written);
}

}  // namespace kev
