#!/usr/bin/env python3
"""Writes the three manifests with which winget installs the MSI, in the schema 1.6.0.

    make_winget.py MSI VERSION FOLDER

NVX_DOWNLOADS is the address of the folder that the MSI will be downloaded from. Without it the manifests have
an address that does not exist, in a line with a remark.
"""

import argparse
import hashlib
import os
import sys
from pathlib import Path

from make_msi import guid

IDENTIFIER = "Velmora.NVX2017"
LOCALE = "en-US"
NOWHERE = "https://server.example/nvx"
TO_DO = " # to be replaced: see NVX_DOWNLOADS"

VERSION_MANIFEST = """\
PackageIdentifier: {identifier}
PackageVersion: {version}
DefaultLocale: {locale}
ManifestType: version
ManifestVersion: 1.6.0
"""

LOCALE_MANIFEST = """\
PackageIdentifier: {identifier}
PackageVersion: {version}
PackageLocale: {locale}
Publisher: Velmora
PackageName: Velmora NVX 2017
License: Proprietary
ShortDescription: NVX 2017, connected to the CAD systems of this machine
ManifestType: defaultLocale
ManifestVersion: 1.6.0
"""

INSTALLER_MANIFEST = """\
PackageIdentifier: {identifier}
PackageVersion: {version}
InstallerType: wix
Scope: machine
InstallModes:
- silent
InstallerSwitches:
  InstallLocation: INSTALLDIR="<INSTALLPATH>"
ExpectedReturnCodes:
- InstallerReturnCode: 1618
  ReturnResponse: installInProgress
UpgradeBehavior: install
ElevationRequirement: elevationRequired
Installers:
- Architecture: x64
  InstallerUrl: {address}
  InstallerSha256: {sha256}
  ProductCode: '{code}'
ManifestType: installer
ManifestVersion: 1.6.0
"""


def manifests(version: str, msi: str, sha256: str, downloads: str = "") -> dict[str, str]:
    """{file name: text} for a package of that name and hash."""
    values = {
        "identifier": IDENTIFIER,
        "version": version,
        "locale": LOCALE,
        "address": f"{downloads.rstrip('/')}/{msi}" if downloads else f"{NOWHERE}/{msi}{TO_DO}",
        "sha256": sha256.upper(),
        "code": "{" + guid("product " + version) + "}",
    }
    return {
        f"{IDENTIFIER}.yaml": VERSION_MANIFEST.format(**values),
        f"{IDENTIFIER}.locale.{LOCALE}.yaml": LOCALE_MANIFEST.format(**values),
        f"{IDENTIFIER}.installer.yaml": INSTALLER_MANIFEST.format(**values),
    }


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").split("\n", maxsplit=1)[0])
    parser.add_argument("msi", type=Path)
    parser.add_argument("version")
    parser.add_argument("folder", type=Path)
    options = parser.parse_args()
    downloads = os.environ.get("NVX_DOWNLOADS", "")
    if downloads and not downloads.startswith("https://"):
        parser.error("NVX_DOWNLOADS is no address with https://")
    sha256 = hashlib.sha256(options.msi.read_bytes()).hexdigest()
    options.folder.mkdir(parents=True, exist_ok=True)
    for name, text in manifests(options.version, options.msi.name, sha256, downloads).items():
        (options.folder / name).write_text(text, encoding="utf-8", newline="\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
