// Renders labels in ZPL as pictures, without a network.
//
// node render.cjs FOLDER DOTS_PER_MILLIMETER
//
// Each file NAME.zpl of the folder becomes NAME-1.png, NAME-2.png, ...: one for each label. The size
// in dots is that of the label's ^PW and ^LL commands.
"use strict";

const fs = require("node:fs");
const path = require("node:path");
// Global only from Node.js 19 on; the renderer needs it. Debian 12 has Node.js 18.
globalThis.crypto ??= require("node:crypto").webcrypto;
const { ready } = require("zpl-renderer-js");

const [folder, dotsPerMillimeter] = process.argv.slice(2);

async function main() {
    const { api } = await ready;
    const density = Number(dotsPerMillimeter);
    for (const name of fs.readdirSync(folder).filter((file) => file.endsWith(".zpl"))) {
        const zpl = fs.readFileSync(path.join(folder, name), "utf8");
        const width = Number(/\^PW(\d+)/.exec(zpl)[1]);
        const height = Number(/\^LL(\d+)/.exec(zpl)[1]);
        const pictures = await api.zplToBase64MultipleAsync(
            zpl, width / density, height / density, density);
        pictures.forEach((picture, index) => {
            const file = path.join(folder, `${path.parse(name).name}-${index + 1}.png`);
            fs.writeFileSync(file, Buffer.from(picture, "base64"));
        });
    }
}

main().then(() => process.exit(0), (error) => {
    console.error(error);
    process.exit(1);
});
