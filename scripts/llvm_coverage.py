# SPDX-License-Identifier: MIT
"""The counting build and what llvm-cov says of its runs."""
import json
import os
import shutil
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
BUILD = ROOT / "build/coverage"


def tool(name: str) -> str:
    """Debian names the tools with or without the version."""
    for candidate in (name, f"{name}-14"):
        if found := shutil.which(candidate):
            return found
    raise SystemExit(f"{name} is missing: scripts/install_dependencies coverage installs it")


def build(targets: list[str]) -> None:
    subprocess.run(["cmake", "--preset", "coverage"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", "coverage", "-j2", "--target", *targets], cwd=ROOT, check=True,
                   stdout=subprocess.DEVNULL)
    (BUILD / "profiles").mkdir(exist_ok=True)


def merged(raw: list[Path], into: Path) -> Path:
    subprocess.run([tool("llvm-profdata"), "merge", "-sparse", *raw, "-o", into], check=True)
    return into


def file_summaries(program: Path, profile: Path) -> dict[str, dict]:
    """By the name below src/: lines and branches, each with count, covered and percent."""
    text = subprocess.run([tool("llvm-cov"), "export", "-summary-only", f"-instr-profile={profile}", program],
                          check=True, capture_output=True, text=True).stdout
    source = str(ROOT / "src") + "/"
    # A compiler cache may have named a file by a way from the build folder.
    files = [(os.path.normpath(file["filename"]), file["summary"]) for file in json.loads(text)["data"][0]["files"]]
    return {name.removeprefix(source): summary for name, summary in files if name.startswith(source)}
